#pragma once

#include "platform/bildschirm/Anordnung.h"
#include "platform/qt/Flaechen.h"

#include <QScrollArea>

#include <vector>

class Ansicht;
class Etikett;
class Tabellenkopf;

/// A row of a table: label at the left, cells in columns of fixed width at the right, a line below. The mouse
/// tints it, and more strongly the keyboard focus in one of its cells.
class Antwortzeile : public QWidget {
public:
    using QWidget::QWidget;

    /// Label and cells are its children already.
    void setze(Etikett& beschriftung, std::vector<QWidget*> zellen);

    /// Places label and cells; returns the height it takes.
    int ordne(int breite, const std::vector<int>& spalten, int mindesthöhe);
    int bevorzugteBeschriftungsbreite() const;
    void setzeAktiv(bool aktiv);
    void beschrifteZellen(const Tabellenkopf& kopf);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void enterEvent(QEnterEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

private:
    Etikett* m_beschriftung = nullptr;
    std::vector<QWidget*> m_zellen; ///< nullptr where the row has no answer
    bool m_aktiv = false;
};

/// The head of a table: groups, titles, and the "!" that fill the columns.
class Tabellenkopf : public QWidget {
public:
    Tabellenkopf(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern);

    int höhe() const { return m_höhe; }
    /// What stands over the column, from top to bottom.
    std::vector<Etikett*> etiketten(std::size_t spalte) const;
    /// Places everything; the height does not depend on the width.
    void ordne(int breite, const std::vector<int>& spalten);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    struct Gruppe {
        Etikett* titel = nullptr;
        std::size_t von = 0;
        std::size_t bis = 0;
        QRect unterstrich;
    };

    void baueFüller(const Anordnung& tabelle, Ansicht& ansicht);
    void baueGruppen(const Anordnung& tabelle, const std::vector<int>& spalten);
    void messe(const std::vector<int>& spalten);

    Etikett* m_titel;
    std::vector<Etikett*> m_titelzeile; ///< nullptr where the column has no title
    std::vector<QWidget*> m_füller;     ///< nullptr where it has no "!"
    std::vector<Gruppe> m_gruppen;
    int m_gruppenhöhe = 0;
    int m_titelhöhe = 0;
    int m_fußhöhe = 0;
    int m_höhe = 0;
};

/// The rows, all of them.
class Tabellenblatt : public Handfläche {
public:
    Tabellenblatt(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern);

    /// Row and column say together what a cell asks.
    void beschrifteZellen(const Tabellenkopf& kopf);
    int höheBei(int breite) const;
    /// Height of the first rows, as many as must always be in sight.
    int mindesthöhe() const;
    int bevorzugteBreite() const;
    QSize sizeHint() const override { return {width(), height()}; }

protected:
    void ordne() override;

private:
    void fügeZeile(const Anordnung& zeile, const std::vector<Tabellenspalte>& köpfe, Ansicht& ansicht);
    int zeilenhöhe() const;

    std::vector<Antwortzeile*> m_zeilen;
    std::vector<int> m_spalten;
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
    void ordne();

    std::vector<int> m_spalten;
    Tabellenkopf* m_kopf = nullptr;
    Tabellenblatt* m_blatt = nullptr;
};
