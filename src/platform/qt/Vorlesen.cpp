#include "platform/qt/Vorlesen.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Textbox.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesefeld.h"
#include "platform/qt/Vorlesekinder.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVariant>

#include <typeinfo>

namespace {

constexpr auto schlüsselAnsicht = "ansicht";

/// An area that scrolls, as a screen reader meets it: what stands still in it (the head of a table), then what
/// scrolls, then the scroll bars that are to be seen.
class Vorlesebereich : public Vorlesekinder<QAccessibleWidget> {
public:
    explicit Vorlesebereich(QWidget* bereich) : Vorlesekinder(bereich, QAccessible::Client) {}

protected:
    QWidgetList kinder() const override
    {
        const auto* bereich = dynamic_cast<QAbstractScrollArea*>(widget());
        if (bereich == nullptr) {
            return {}; // it is being taken down
        }
        auto* rollendes = bereich->viewport();
        QWidgetList leisten{bereich->horizontalScrollBar()->parentWidget(),
                            bereich->verticalScrollBar()->parentWidget()};
        QWidgetList alle;
        for (auto* objekt : bereich->children()) {
            auto* kind = objekt->isWidgetType() ? static_cast<QWidget*>(objekt) : nullptr;
            if (kind != nullptr && kind != rollendes && !leisten.contains(kind) && !kind->isWindow()) {
                alle << kind;
            }
        }
        alle << rollendes;
        for (auto* leiste : leisten) {
            if (leiste != nullptr && leiste->isVisible()) {
                alle << leiste;
            }
        }
        return alle;
    }
};

QAccessibleInterface* erzeugeFürElement(QWidget& widget)
{
    auto* ansicht = ansichtUm(widget);
    if (ansicht == nullptr) {
        return nullptr;
    }
    if (ansicht->wurzel() == &widget) {
        return new QAccessibleWidget(&widget,
                                     QAccessible::Grouping); // named, so that the page is said when it is entered
    }
    if (auto* liste = dynamic_cast<Listenansicht*>(&widget)) {
        return vorleselisteFür(*liste, *ansicht);
    }
    return vorlesefeldFür(widget, *ansicht);
}

/// Asked by the toolkit once for each object, with the class it is and then with each class it descends from.
QAccessibleInterface* erzeuge(const QString& /*klasse*/, QObject* objekt)
{
    auto* widget = objekt != nullptr && objekt->isWidgetType() ? static_cast<QWidget*>(objekt) : nullptr;
    if (widget == nullptr) {
        return nullptr;
    }
    if (dynamic_cast<QScrollArea*>(widget) != nullptr) {
        return new Vorlesebereich(widget);
    }
    if (typeid(*widget) == typeid(QFrame)) { // header band, button bar, hairline: the toolkit would call it a window
        const bool istLinie = widget->property("rolle").toString() == QStringLiteral("linie") ||
                              widget->property("rolle").toString() == QStringLiteral("bandstrich");
        return new QAccessibleWidget(widget, istLinie ? QAccessible::Separator : QAccessible::Grouping);
    }
    if (widget->objectName() == QLatin1String(feldhinweis)) {
        return new QAccessibleWidget(widget, QAccessible::Notification); // spoken by itself when it appears
    }
    if (dynamic_cast<Kindfenster*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Dialog);
    }
    return erzeugeFürElement(*widget);
}

} // namespace

void richteVorlesenEin()
{
    QAccessible::removeFactory(erzeuge);
    QAccessible::installFactory(erzeuge);
}

void meldeWurzel(QWidget& wurzel, Ansicht& ansicht)
{
    wurzel.setProperty(schlüsselAnsicht, QVariant::fromValue(static_cast<void*>(&ansicht)));
}

Ansicht* ansichtUm(const QWidget& widget)
{
    for (const auto* um = &widget; um != nullptr; um = um->parentWidget()) {
        // the names first: the value of a property that is not there is looked for among all that the class has
        if (um->dynamicPropertyNames().contains(schlüsselAnsicht)) {
            return static_cast<Ansicht*>(um->property(schlüsselAnsicht).value<void*>());
        }
    }
    return nullptr;
}

void beschrifte(QWidget& feld, QLabel& etikett)
{
    auto alle = feld.property(schlüsselEtiketten).value<Etikettenliste>();
    alle.append(&etikett);
    feld.setProperty(schlüsselEtiketten, QVariant::fromValue(alle));
}

void unterscheide(QWidget& feld, const QString& wodurch)
{
    feld.setAccessibleDescription(gesprochen(wodurch));
}

void benenne(QWidget& feld, const QString& name)
{
    feld.setAccessibleName(name);
    if (auto* box = dynamic_cast<QComboBox*>(&feld); box != nullptr && box->isEditable()) {
        box->lineEdit()->setAccessibleName(name);
    }
}

void benenneUnbenannte(QWidget& um, const QString& name)
{
    for (auto* kind : um.findChildren<QWidget*>()) {
        const bool brauchtNamen =
            dynamic_cast<Listenansicht*>(kind) != nullptr || dynamic_cast<Textblock*>(kind) != nullptr;
        if (brauchtNamen && kind->accessibleName().isEmpty()) {
            benenne(*kind, gesprochen(name));
        }
    }
}

void benenneFüller(QWidget& füller, std::string_view gefülltes)
{
    füller.setAccessibleName(QStringLiteral("Ausfüllen: ") + gesprochen(alsQString(gefülltes)));
}

void nimmFremdeEingabe(QWidget& feld, const Element& element, Ansicht& ansicht)
{
    const auto* box = dynamic_cast<QComboBox*>(&feld);
    auto* zeile = box != nullptr ? box->lineEdit() : dynamic_cast<QLineEdit*>(&feld);
    if (zeile == nullptr) {
        return;
    }
    const auto gleicheAb = [zeile, &element, &ansicht] {
        if (ansicht.lebt() && zeile->text() != alsQString(element.text())) {
            Q_EMIT zeile->textEdited(zeile->text());
        }
    };
    QObject::connect(zeile, &QLineEdit::textChanged, zeile, [zeile, &ansicht, gleicheAb] {
        if (!zeile->isModified() && ansicht.lebt() && !ansicht.istInEreignis()) {
            QTimer::singleShot(0, zeile, gleicheAb); // when all that belongs to this change has been done
        }
    });
}

void sprichKalender(QCalendarWidget& kalender)
{
    const auto sprich = [&kalender] {
        auto* blatt = kalender.findChild<QAbstractItemView*>();
        if (blatt == nullptr || !blatt->isVisible()) {
            return;
        }
        blatt->setAccessibleName(kalender.locale().toString(kalender.selectedDate(), QLocale::LongFormat));
        QAccessibleEvent erreicht(blatt, QAccessible::Focus);
        QAccessible::updateAccessibility(&erreicht);
    };
    QObject::connect(&kalender, &QCalendarWidget::selectionChanged, &kalender, sprich);
}

void meldeWert(QWidget& feld, const QString& wert)
{
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent gewechselt(&feld, wert);
        QAccessible::updateAccessibility(&gewechselt);
    }
}

QString gesprochen(const QString& beschriftung)
{
    static const QRegularExpression kürzel(QStringLiteral("&(.?)"));
    static const QRegularExpression trennung(QStringLiteral("-\\s(?=\\p{Ll})")); // in a word that the drawing breaks
    return QString(beschriftung).replace(kürzel, QStringLiteral("\\1")).remove(trennung).simplified();
}
