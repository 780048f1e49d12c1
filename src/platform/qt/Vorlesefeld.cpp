#include "platform/qt/Vorlesefeld.h"

#include "platform/bildschirm/Bildschirm.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Vorlesekinder.h"
#include "platform/qt/Vorlesen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <functional>
#include <utility>

Vorlesefeld::Vorlesefeld(QWidget& widget, Ansicht& ansicht, QAccessible::Role rolle)
    : QAccessibleWidget(&widget, rolle), m_ansicht(ansicht)
{}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> Vorlesefeld::relations(QAccessible::Relation welche) const
{
    auto alle = QAccessibleWidget::relations(welche);
    if (welche.testFlag(QAccessible::Label)) {
        for (const auto& etikett : widget()->property(schlüsselEtiketten).value<Etikettenliste>()) {
            if (auto* zugang = QAccessible::queryAccessibleInterface(etikett.data())) {
                alle.append({zugang, QAccessible::Label});
            }
        }
    }
    return alle;
}

QStringList Vorlesefeld::actionNames() const
{
    QStringList namen;
    if (widget()->isEnabled()) {
        namen << pressAction();
        if (widget()->focusPolicy() != Qt::NoFocus) {
            namen << setFocusAction();
        }
    }
    return namen;
}

bool Vorlesefeld::istErreichbar() const
{
    const auto* davor = QApplication::activeModalWidget();
    return widget()->isEnabled() && widget()->isVisible() && (davor == nullptr || davor->isAncestorOf(widget()));
}

bool Vorlesefeld::fokussiere(Ansicht& ansicht, const QWidget& widget)
{
    auto* element = ansicht.elementVon(&widget);
    if (element == nullptr) {
        return false;
    }
    bool gelungen = true;
    ansicht.ereignis([&] { gelungen = !element->nimmtFokus() || ansicht.bildschirm().fokussiere(element); });
    return gelungen && ansicht.lebt();
}

void Vorlesefeld::doAction(const QString& aktion)
{
    if (!istErreichbar()) {
        return;
    }
    if (aktion == setFocusAction()) {
        fokussiere(m_ansicht, *widget());
    } else if (aktion == pressAction()) {
        // what the press does may show a box and wait in it; the reader is not to wait for that
        QTimer::singleShot(0, widget(), [&ansicht = m_ansicht, &gedrückt = *widget()] {
            auto* element = ansicht.elementVon(&gedrückt);
            if (element != nullptr && fokussiere(ansicht, gedrückt) && ansicht.bildschirm().istErreichbar(*element)) {
                ansicht.ereignis([&] { element->klicke(); });
            }
        });
    }
}

namespace {

/// Buttons: push button, option of a group, check box.
class Vorleseknopf : public Vorlesefeld {
public:
    Vorleseknopf(QAbstractButton& knopf, Ansicht& ansicht, QAccessible::Role rolle)
        : Vorlesefeld(knopf, ansicht, rolle), m_knopf(knopf)
    {}

    QString text(QAccessible::Text art) const override
    {
        if (art == QAccessible::Name && m_knopf.accessibleName().isEmpty()) {
            const auto name = gesprochen(m_knopf.text());
            return name.isEmpty() ? QStringLiteral("entfällt") : name; // an empty cover: what it covers is not asked
        }
        return Vorlesefeld::text(art);
    }
    QAccessible::State state() const override
    {
        auto zustand = Vorlesefeld::state();
        zustand.checkable = m_knopf.isCheckable();
        zustand.checked = m_knopf.isChecked();
        zustand.pressed = m_knopf.isDown();
        return zustand;
    }

private:
    QAbstractButton& m_knopf;
};

/// A field whose value is picked. As with every choice on Unix its name is the value, and the question is its label;
/// elsewhere the name is the question.
class Vorlesewahl : public Vorlesefeld {
public:
    Vorlesewahl(QWidget& widget, Ansicht& ansicht, std::function<QString()> wert)
        : Vorlesefeld(widget, ansicht, QAccessible::ComboBox), m_wert(std::move(wert))
    {}

    QString text(QAccessible::Text art) const override
    {
#ifdef Q_OS_UNIX
        const bool istWert = art == QAccessible::Value || art == QAccessible::Name;
#else
        const bool istWert = art == QAccessible::Value;
#endif
        return istWert ? m_wert() : Vorlesefeld::text(art);
    }

private:
    std::function<QString()> m_wert;
};

QString wertVon(const Auswahlbox& box)
{
    const auto text = box.gezeigterText();
    return text.isEmpty() ? QStringLiteral("leer") : text;
}

/// The combo box; a number combo has the text in it as a child, an open list is a child too.
class Vorleseauswahl : public Vorlesekinder<Vorlesewahl> {
public:
    Vorleseauswahl(Auswahlbox& box, Ansicht& ansicht)
        : Vorlesekinder(box, ansicht, [&box] { return wertVon(box); }), m_box(box)
    {}

    QAccessible::State state() const override
    {
        auto zustand = Vorlesewahl::state();
        zustand.hasPopup = true;
        zustand.expandable = true;
        zustand.editable = m_box.isEditable();
        return zustand;
    }
    QStringList actionNames() const override
    {
        auto namen = Vorlesewahl::actionNames();
        if (m_box.isEnabled()) {
            namen.prepend(showMenuAction());
        }
        return namen;
    }
    void doAction(const QString& aktion) override
    {
        if (aktion != showMenuAction() && aktion != pressAction()) {
            Vorlesewahl::doAction(aktion);
        } else if (istErreichbar()) {
            QTimer::singleShot(0, &m_box, [&wege = ansicht(), &box = m_box] {
                if (fokussiere(wege, box)) {
                    box.showPopup();
                }
            });
        }
    }

protected:
    /// The list only while it is open: asking for it would build it, which takes its time with all nations.
    QWidgetList kinder() const override
    {
        QWidgetList alle;
        if (m_box.isEditable()) {
            alle << m_box.lineEdit();
        }
        if (auto* liste = m_box.findChild<QAbstractItemView*>(); liste != nullptr && liste->isVisible()) {
            alle << liste;
        }
        return alle;
    }

private:
    Auswahlbox& m_box;
};

} // namespace

QAccessibleInterface* vorlesefeldFür(QWidget& widget, Ansicht& ansicht)
{
    if (auto* antwort = dynamic_cast<Antwortfeld*>(&widget)) {
        // a choice that changes by a press or by left and right, without a list
        return new Vorlesewahl(*antwort, ansicht, [antwort] { return antwort->gesprochenerText(); });
    }
    if (auto* box = dynamic_cast<Auswahlbox*>(&widget)) {
        return new Vorleseauswahl(*box, ansicht);
    }
    if (auto* knopf = dynamic_cast<Knopf*>(&widget)) {
        return new Vorleseknopf(*knopf, ansicht, QAccessible::Button);
    }
    if (auto* option = dynamic_cast<Optionsknopf*>(&widget)) {
        return new Vorleseknopf(*option, ansicht, QAccessible::RadioButton);
    }
    if (auto* kästchen = dynamic_cast<Ankreuzkästchen*>(&widget)) {
        return new Vorleseknopf(*kästchen, ansicht, QAccessible::CheckBox);
    }
    return nullptr;
}
