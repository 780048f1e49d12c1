#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <vector>

class QWidget;

/// A text as a widget paints it.
struct Schriftzug {
    QString text;
    QRectF tinte;   ///< what the letters cover, in the widget's coordinates
    QRectF erlaubt; ///< where the painter let anything through; empty for everywhere
    QColor farbe;
};

/// Lets the widget paint itself, without its children, and returns every text that it paints.
std::vector<Schriftzug> schriftVon(QWidget& widget);
