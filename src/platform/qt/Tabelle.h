#pragma once

#include "platform/bildschirm/Anordnung.h"

#include <QScrollArea>

#include <vector>

class Ansicht;
class Etikett;
class QGridLayout;

/// Of a table and of the listing: each line is a grid of its own with the same columns, which have their widths
/// whatever stands in them. What is left goes to the columns without a width, else to that of the labels, number 0 of a
/// table.
void richteSpaltenEin(QGridLayout& gitter, const Anordnung& tabelle);
/// The column of the grid, which in a table has the labels before it.
int gitterspalte(const Anordnung& tabelle, std::size_t spalte);
/// In the listing the first columns begin at the left; all others are centred.
bool istLinksbündig(const Anordnung& tabelle, std::size_t spalte);

/// The head of a table or of the listing: groups, titles, and the "!" that fill the columns.
class Tabellenkopf : public QWidget {
public:
    Tabellenkopf(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern);

    /// What stands over the column, from top to bottom.
    const std::vector<Etikett*>& etiketten(std::size_t spalte) const { return m_etiketten[spalte]; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void baueTitel(const Anordnung& tabelle, Ansicht& ansicht, QGridLayout& gitter);
    void baueFüller(const Anordnung& tabelle, Ansicht& ansicht, QGridLayout& gitter);
    void baueGruppen(const Anordnung& tabelle, QGridLayout& gitter);

    std::vector<std::vector<Etikett*>> m_etiketten;
    std::vector<Etikett*> m_unterstrichen; ///< titles of groups
};

/// A row of a table: label at the left, cells in columns of fixed width at the right, a line below. The mouse
/// tints it, and more strongly the keyboard focus in one of its cells.
class Antwortzeile : public QWidget {
public:
    Antwortzeile(const Anordnung& zeile, const Anordnung& tabelle, const Tabellenkopf& kopf, Ansicht& ansicht,
                 QWidget* eltern);

    int bevorzugteBeschriftungsbreite() const;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Etikett& m_beschriftung;
};

/// Rows of answers that scroll under a head that stands still.
class Tabelle : public QScrollArea {
public:
    Tabelle(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;

private:
    Tabellenkopf* m_kopf;
    std::vector<Antwortzeile*> m_zeilen;
    int m_spaltenbreite; ///< of all columns with answers
    int m_mindesthöhe;   ///< of the first rows, as many as must always be in sight
};

/// The diagnosis listing with its scroll bar: heads and the first row stand, the others move inside the element
/// `frameHinten` as `frameVorne` says. Sideways it scrolls as a whole.
QWidget* macheListung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern);
