#pragma once
class ChildArea;
class QMenu;

// Keeps the list of open children at the end of the menu: a click brings one forward.
void listChildrenIn(QMenu* menu, ChildArea* area);
