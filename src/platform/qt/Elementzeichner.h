#pragma once

class Ansicht;
class Element;
class QWidget;

/// Makes the widget that draws the element and ties it to it: one drawing routine for each kind. nullptr for
/// a menu entry, which is no widget.
QWidget* zeichneElement(Element& element, Ansicht& ansicht, QWidget* eltern);
