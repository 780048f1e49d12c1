#pragma once

#include <QFont>
#include <QSize>
#include <QString>

/// The text as it fits into the place: whole where it does, else its lines cut with "…". `bricht`: lines are broken
/// between words first.
QString kürze(const QString& text, const QSize& platz, const QFont& schrift, bool bricht);
