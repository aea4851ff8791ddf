#pragma once

class TextBox;

// Completes the unit typed into a text box when it is left: a known prefix becomes its unit, an unknown one
// is offered for adding, and the answer No empties the box. A failing store shows its box and leaves the
// text.
void completeUnit(TextBox* box);
