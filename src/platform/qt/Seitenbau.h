#pragma once

class Ansicht;
class QScrollArea;
class QWidget;

/// Builds the widgets of a screen (header band, body that scrolls, button bar) below `eltern` and ties them to the
/// elements; the menus of the screen are tied too, but hang nowhere yet. The body.
QScrollArea* baueSeite(Ansicht& ansicht, QWidget* eltern);
