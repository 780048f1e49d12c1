#pragma once

class Ansicht;
class QScrollArea;
class QWidget;

/// The widgets of a screen: header band, body that scrolls, button bar.
struct Seite {
    QWidget* wurzel = nullptr;
    QScrollArea* blatt = nullptr;
};

/// Builds them below `eltern` and ties them to the elements; the menus of the screen are tied too, but hang
/// nowhere yet.
Seite baueSeite(Ansicht& ansicht, QWidget* eltern);
