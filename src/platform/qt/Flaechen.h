#pragma once

#include <QGroupBox>
#include <QWidget>

#include <vector>

/// A widget that places its children by itself, and again whenever one of them asks for another size.
class Handfläche : public QWidget {
public:
    using QWidget::QWidget;

protected:
    virtual void ordne() = 0;
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

private:
    int m_breite = 0;
};

/// Parts that share one place, which is as large as the largest of them, seen or not.
class Stapelfläche : public Handfläche {
public:
    using Handfläche::Handfläche;

    /// All are its children already.
    void setze(std::vector<QWidget*> teile);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    std::vector<QWidget*> m_teile;
};

/// Two parts in one place: the lower is covered, and takes no input, while the cover is visible. The
/// elements' own state stays as it is.
class Deckfläche : public Stapelfläche {
public:
    using Stapelfläche::Stapelfläche;

    /// Both are its children already.
    void setze(QWidget& darunter, QWidget& decke);

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void gleicheAb();

    QWidget* m_darunter = nullptr;
    QWidget* m_decke = nullptr;
};

/// Buttons side by side, those behind the gap at the right; in several rows where they don't fit into one.
class Umbruchreihe : public Handfläche {
public:
    explicit Umbruchreihe(QWidget* eltern);

    /// All are its children already; `lücke` is how many stand before the gap.
    void setze(std::vector<QWidget*> teile, std::size_t lücke);
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    std::vector<std::vector<QWidget*>> reihen() const;
    bool istRechts(const QWidget* teil) const;
    int reihenhöhe() const;

    std::vector<QWidget*> m_teile;
    std::size_t m_lücke = 0;
};

int summe(const std::vector<int>& werte);
/// What is missing is taken from each width as it can spare it, down to the least.
void verenge(std::vector<int>& breiten, const std::vector<int>& mindestens, int fehlt);

/// Columns of cards side by side; below each other where their least widths don't fit.
class Kartenreihe : public Handfläche {
public:
    explicit Kartenreihe(QWidget* eltern);

    /// The column is its child already; `höchstbreite` in pixels; `wächst` when the column takes the height that is
    /// there.
    void füge(QWidget& spalte, int höchstbreite, bool wächst);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void ordne() override;

private:
    struct Spalte {
        QWidget* widget = nullptr;
        int höchstbreite = 0;
    };

    bool passtNebeneinander(int breite) const;
    std::vector<int> verteile(int breite) const;
    int höhe(bool kleinste) const;

    std::vector<Spalte> m_spalten;
};
