#pragma once

// The colours of a dark desktop, as the program's style takes them from one, and the light ones again.
void useDarkDesk();
void useLightDesk();
