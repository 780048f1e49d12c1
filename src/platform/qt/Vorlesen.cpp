#include "platform/qt/Vorlesen.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Textbox.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesebereich.h"
#include "platform/qt/Vorlesefeld.h"
#include "platform/qt/Vorleseliste.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCalendarWidget>
#include <QFrame>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <QVariant>

#include <typeinfo>

namespace {

constexpr auto schlüsselAnsicht = "ansicht";

QAccessibleInterface* erzeugeFürElement(QWidget& widget)
{
    auto* ansicht = ansichtUm(widget);
    if (ansicht == nullptr) {
        return nullptr;
    }
    if (ansicht->wurzel() == &widget) {
        return new Vorleseteil(widget, QAccessible::Grouping); // named, so that the page is said when it is entered
    }
    if (auto* antwort = dynamic_cast<Antwortfeld*>(&widget)) {
        return new Vorleseantwort(*antwort, *ansicht);
    }
    if (auto* box = dynamic_cast<Auswahlbox*>(&widget)) {
        return new Vorleseauswahl(*box, *ansicht);
    }
    if (auto* knopf = dynamic_cast<Knopf*>(&widget)) {
        return new Vorleseknopf(*knopf, *ansicht, QAccessible::Button);
    }
    if (auto* option = dynamic_cast<Optionsknopf*>(&widget)) {
        return new Vorleseknopf(*option, *ansicht, QAccessible::RadioButton);
    }
    if (auto* kästchen = dynamic_cast<Ankreuzkästchen*>(&widget)) {
        return new Vorleseknopf(*kästchen, *ansicht, QAccessible::CheckBox);
    }
    if (auto* liste = dynamic_cast<Listenansicht*>(&widget)) {
        return new Vorleseliste(*liste, *ansicht);
    }
    return nullptr;
}

/// Asked by the toolkit once for each object, with the class it is and then with each class it descends from.
QAccessibleInterface* erzeuge(const QString& /*klasse*/, QObject* objekt)
{
    auto* widget = objekt != nullptr && objekt->isWidgetType() ? static_cast<QWidget*>(objekt) : nullptr;
    if (widget == nullptr) {
        return nullptr;
    }
    if (dynamic_cast<QScrollArea*>(widget) != nullptr) {
        return new Vorlesebereich(*widget);
    }
    if (typeid(*widget) == typeid(QFrame)) {
        const bool istLinie = widget->property("rolle").toString() == QStringLiteral("linie") ||
                              widget->property("rolle").toString() == QStringLiteral("bandstrich");
        return new Vorleseteil(*widget, istLinie ? QAccessible::Separator : QAccessible::Grouping);
    }
    if (widget->objectName() == QLatin1String(feldhinweis)) {
        return new Vorleseteil(*widget, QAccessible::Notification); // spoken by itself when it appears
    }
    if (dynamic_cast<Kindfenster*>(widget) != nullptr) {
        return new Vorlesefenster(*widget);
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
        if (const auto ansicht = um->property(schlüsselAnsicht); ansicht.isValid()) {
            return static_cast<Ansicht*>(ansicht.value<void*>());
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

void meldeMarke(QWidget& feld)
{
    if (QAccessible::isActive()) {
        QAccessible::State anders;
        anders.checked = true;
        QAccessibleStateChangeEvent gewechselt(&feld, anders);
        QAccessible::updateAccessibility(&gewechselt);
    }
}

QString gesprochen(const QString& beschriftung)
{
    QString ergebnis;
    for (qsizetype i = 0; i < beschriftung.size(); ++i) {
        const QChar zeichen = beschriftung[i];
        const QChar nächstes = i + 1 < beschriftung.size() ? beschriftung[i + 1] : QChar();
        const QChar übernächstes = i + 2 < beschriftung.size() ? beschriftung[i + 2] : QChar();
        if (zeichen == QChar('&')) {
            ergebnis += nächstes == QChar('&') ? QStringLiteral("&") : QString();
            i += nächstes == QChar('&') ? 1 : 0;
        } else if (zeichen == QChar('-') && nächstes.isSpace() && übernächstes.isLower()) {
            ++i; // a word that the drawing breaks
        } else {
            ergebnis += zeichen.isSpace() ? QChar(' ') : zeichen;
        }
    }
    return ergebnis.simplified();
}
