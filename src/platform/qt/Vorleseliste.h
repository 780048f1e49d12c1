#pragma once

class Ansicht;
class Listenansicht;
class QAccessibleInterface;

/// The list, as a screen reader meets it: a table of column heads and cells with a name. A row that the reader selects
/// is the row of the element, so that the next command acts on it; a cell that is gone with its row is no child.
QAccessibleInterface* vorleselisteFür(Listenansicht& liste, Ansicht& ansicht);
