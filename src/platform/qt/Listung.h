#pragma once

#include "platform/bildschirm/Anordnung.h"
#include "platform/qt/Flaechen.h"

#include <vector>

class Ansicht;
class Etikett;
class QScrollArea;

/// A row of the listing: labels in columns, a line below unless the row is blank.
class Listungszeile : public QWidget {
public:
    Listungszeile(const Anordnung& zeile, Ansicht& ansicht, QWidget* eltern);

    void ordne(const std::vector<int>& spalten);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    std::vector<Etikett*> m_zellen;
};

/// The diagnosis listing without its scroll bar: heads and the first row stand, the others move inside
/// `hinten`, as the element `vorne` says.
class Listungsblatt : public Handfläche {
public:
    Listungsblatt(const Anordnung& listung, Ansicht& ansicht, QWidget* leiste, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Where the moving part begins.
    int obenBewegt() const { return m_kopfhöhe + 3 * zeilenhöhe(); }

protected:
    void ordne() override;
    void paintEvent(QPaintEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

private:
    static int zeilenhöhe();
    void baueKopf(const std::vector<Tabellenspalte>& spalten);
    void ordneKopf(const std::vector<int>& spalten);
    std::vector<int> spaltenbreiten() const;
    int höheFür(int bewegteZeilen) const;
    void meldeHöhen();
    void bewege();

    Ansicht& m_ansicht;
    Fläche& m_vorneElement;
    Fläche& m_hintenElement;
    QWidget* m_leiste;
    QWidget* m_vorne;
    QWidget* m_hinten;
    std::vector<double> m_breiten; ///< em; 0 shares what is left
    std::vector<Etikett*> m_köpfe;
    struct Gruppe {
        Etikett* titel;
        std::size_t von;
        std::size_t bis;
    };
    std::vector<Gruppe> m_gruppen;
    Etikett* m_überErste;
    Etikett* m_überRest;
    std::vector<Listungszeile*> m_zeilen;
    int m_kopfhöhe = 0;
};

/// The listing with its scroll bar; sideways it scrolls as a whole.
class Listung : public Handfläche {
public:
    Listung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    void sprichZeilen(const Anordnung& listung, Ansicht& ansicht);

    QWidget* m_leiste;
    QScrollArea* m_rolle;
    Listungsblatt* m_blatt;
};
