#pragma once

#include <QLabel>

class Ansicht;
class Beschriftung;

/// A label; also a fixed text that is no element. Where its text has no room it ends with "…", and the tool tip tells
/// the whole: no text decides how wide a window is.
class Etikett : public QLabel {
public:
    Etikett(const QString& text, QWidget* eltern);
    Etikett(Beschriftung& element, Ansicht& ansicht, QWidget* eltern);

    /// Wraps at this width, which it then has whatever its text.
    void setzeUmbruchbreite(int breite);
    /// "hyphen, blank" is where a column head breaks.
    void brichAmBindestrich();
    /// A text up to this width (em) is never cut: what a person must always see.
    void setzeMindestbreite(double breite) { m_mindestbreite = breite; }
    /// The text as it is painted.
    QString gezeigterText() const;
    /// How wide the text is where nothing breaks it.
    qreal textbreite() const;
    /// A row of the diagnosis listing paints the row's kind behind the text.
    void seiListenzelle() { m_istListenzelle = true; }

    bool hasHeightForWidth() const override { return wordWrap() && m_umbruchbreite == 0; }
    int heightForWidth(int breite) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;

private:
    void zeigeText(const QString& text);
    void zeichneZeilenart();
    QRect textplatz() const;
    QSize rand() const;
    bool stehtInEinerZeile(int breite) const;

    /// Of the text in one line. To measure is the dearest part of a layout: once for each text and font.
    struct Textmaß {
        QString text;
        QFont schrift;
        qreal breite = 0;
        int zeilenhöhe = 0;
    };
    const Textmaß& textmaß() const;

    Beschriftung* m_element = nullptr;
    Ansicht* m_ansicht = nullptr;
    int m_umbruchbreite = 0;
    bool m_brichtAmBindestrich = false;
    double m_mindestbreite = 4;
    bool m_istListenzelle = false;
    bool m_gedrückt = false;
    mutable Textmaß m_maß;
};
