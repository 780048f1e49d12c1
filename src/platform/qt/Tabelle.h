#pragma once

#include "platform/bildschirm/Anordnung.h"

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
    void beschrifteZellen(const Tabellenkopf& kopf);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Etikett* m_beschriftung = nullptr;
    std::vector<QWidget*> m_zellen; ///< nullptr where the row has no answer
};

/// In the listing so many columns, the first ones, begin at the left; all others are centred.
inline constexpr std::size_t linksbündigeSpalten = 2;

/// The head of a table or of the listing: groups, titles, and the "!" that fill the columns.
class Tabellenkopf : public QWidget {
public:
    enum class Form { Tabelle, Listung };

    Tabellenkopf(const Anordnung& tabelle, Form form, Ansicht& ansicht, QWidget* eltern);

    /// What stands over the column, from top to bottom.
    std::vector<Etikett*> etiketten(std::size_t spalte) const;
    /// Takes the width and the height that it needs, at the top of its parent, and places everything. The columns end
    /// at the right edge.
    void ordne(int breite, const std::vector<int>& spalten);
    /// The height that it took.
    int höhe() const { return m_höhe; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    struct Gruppe {
        Etikett* titel = nullptr;
        std::size_t von = 0;
        std::size_t bis = 0;
    };

    void baueFüller(const Anordnung& tabelle, Ansicht& ansicht);
    void baueGruppen(const std::vector<Tabellenspalte>& spalten);
    int titelhöhe(std::size_t von, std::size_t bis, const std::vector<int>& spalten) const;

    Form m_form;
    Etikett* m_titel;
    std::vector<Etikett*> m_titelzeile; ///< nullptr where the column has no title
    std::vector<QWidget*> m_füller;     ///< nullptr where it has no "!"
    std::vector<Gruppe> m_gruppen;
    int m_fußhöhe = 0;
    int m_höhe = 0;
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
    class Blatt;

    void ordne();

    std::vector<int> m_spalten;
    Tabellenkopf* m_kopf = nullptr;
    Blatt* m_blatt = nullptr;
};
