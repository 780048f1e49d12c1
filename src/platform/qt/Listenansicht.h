#pragma once

#include <QTreeView>

#include <vector>

class Ansicht;
class Liste;

/// The list: shows rows and selection of the element; clicks and keys are the element's.
class Listenansicht : public QTreeView {
public:
    Listenansicht(Liste& element, Ansicht& ansicht, QWidget* eltern);

    /// In pixels: the least width, from which the wanted one follows. Without it both follow the rows.
    void setzeMindestbreite(int breite) { m_breite = breite; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;

private:
    class Modell;

    void richteKopfEin();
    void übernimm();
    void messeSpalten();
    void verteileSpalten();
    void zeigeAuswahl();

    Liste& m_element;
    Ansicht& m_ansicht;
    Modell* m_modell;
    std::vector<int> m_spaltenbreiten; ///< what the texts need
    std::vector<int> m_mindestbreiten; ///< what heads, numbers and dates need; names can be cut
    int m_breite = 0;
    bool m_folgtAuswahl = false; ///< the selected row stays in sight when the list changes its size
};
