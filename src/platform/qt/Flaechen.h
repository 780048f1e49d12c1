#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QWidget>

#include <vector>

/// A widget whose size, or the places of its children, follow the size it is given, and those of its children.
class Handfläche : public QWidget {
public:
    using QWidget::QWidget;

protected:
    virtual void ordne() {}
    void resizeEvent(QResizeEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    bool event(QEvent* ereignis) override;
};

/// A group of fields with a title. One that stands alone on its page is as wide as it was laid out, or as its parts
/// need: a wide font is not cut.
class Karte : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    void setzeBreite(int breite);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    int m_breite = 0;
};

/// Parts that share one place, which is as large as the largest of them, seen or not.
class Stapelfläche : public QWidget {
public:
    explicit Stapelfläche(QWidget* eltern);

    /// The part is its child already.
    void füge(QWidget& teil);

private:
    QGridLayout* m_platz;
};

/// Two parts in one place: the lower is covered, and takes no input, while the cover is visible. The
/// elements' own state stays as it is.
class Deckfläche : public Stapelfläche {
public:
    using Stapelfläche::Stapelfläche;
};

/// Buttons side by side, those behind the gap at the right; in several rows where they don't fit into one.
class Umbruchreihe : public Handfläche {
public:
    explicit Umbruchreihe(QWidget* eltern);

    /// The button is its child already; `rechts`: behind the gap.
    void füge(QWidget& knopf, bool rechts);
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    struct Teil {
        QWidget* knopf;
        bool rechts;
    };
    struct Reihe {
        std::vector<Teil> teile;
        int breite = 0;
    };

    std::vector<Reihe> reihen() const;
    QSize größterKnopf() const;

    std::vector<Teil> m_teile;
};

/// Columns of cards side by side; below each other where their least widths don't fit.
class Kartenreihe : public Handfläche {
public:
    explicit Kartenreihe(QWidget* eltern);

    /// The column is its child already; `höchstbreite` in pixels; `wächst` when the column takes the height that is
    /// there.
    void füge(QWidget& spalte, int höchstbreite, bool wächst);
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    struct Spalte {
        QWidget* widget = nullptr;
        int höchstbreite = 0;
    };

    QBoxLayout* m_reihe;
    std::vector<Spalte> m_spalten;
};
