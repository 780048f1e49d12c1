#pragma once

#include "platform/elemente/Elemente.h"

#include <QString>

#include <string>
#include <vector>

class QComboBox;
class QTreeView;
class QWidget;

/// What a person sees on the real widgets, as code-page text.
namespace qtauge {

/// Text, caption or value that the widget of the element shows.
std::string text(const Element& element, const QWidget& widget);
std::string text(const QString& text);

/// Whether the widget is in view, wherever it is scrolled to, and no cover lies on it.
bool istZuSehen(const QWidget& widget);
/// Whether the widget takes input; a cover on it does not count.
bool istFrei(const QWidget& widget);
bool hatFokus(const QWidget& widget);
Farbe hintergrund(const Element& element, const QWidget& widget);

std::vector<std::string> einträge(const QComboBox& box);
std::vector<std::string> zeilen(const QTreeView& liste);
std::vector<std::string> spaltenköpfe(const QTreeView& liste);
/// From 1, 0 for none.
std::size_t auswahl(const QTreeView& liste);

} // namespace qtauge
