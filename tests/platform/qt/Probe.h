#pragma once

#include "hilfen/Testumgebung.h"

#include "platform/bildschirm/Ablauf.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Rahmen.h"
#include "platform/qt/QtOberflaeche.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <string>

/// Makes the application on which the widgets of the tests live.
void stelleAnwendungBereit();

/// A screen with an element of every kind, as the tests of the windows need it.
class Probebildschirm : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Probe"_t};
    Beschriftung lblName{*this, "lblName"_t};
    Beschriftung lblFrage{*this, "lblFrage"_t, "Wie oft"_t};
    Elementreihe<Beschriftung> lblZeile{*this, "lblZeile"_t, 1, 14};
    Elementreihe<triCtlJaNein> triJaNein{*this, "triJaNein"_t, 1, 14};
    Elementreihe<Auswahlfeld> comboZahl{*this, "comboZahl"_t, 1, 14, Auswahlfeld::Art::Tippbar};
    Elementreihe<Optionsfeld> optWas{*this, "optWas"_t, 1, 3};
    Optionsgruppe gruppe;
    Textfeld tbName{*this, "tbName"_t, Einzeilig, 20};
    Textfeld tbMemo{*this, "tbMemo"_t, Mehrzeilig};
    Auswahlfeld comboArt{*this, "comboArt"_t};
    Datumsfeld DTPicker{*this, "DTPicker"_t};
    Ankreuzfeld cbHaken{*this, "cbHaken"_t, "Haken"_t};
    Liste lvw{*this, "lvw"_t, {"Nummer", "Name"}};
    Schaltfläche cmdFüller{*this, "cmdFüller"_t, "!"_t, Schaltfläche::Rolle::Füller};
    Schaltfläche cmdDecke{*this, "cmdDecke"_t, "verdeckt"_t, Schaltfläche::Rolle::Decke};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};
    Menüeintrag mnDatei{*this, "mnDatei"_t, "Datei"_t};
    Menüeintrag mnEnde{*this, "mnEnde"_t, "Ende"_t};

    Probebildschirm();

private:
    void ordneAn();
};

/// A run with one Probebildschirm in real windows on the offscreen platform.
class Fensterprobe : public ::testing::Test {
protected:
    Fensterprobe();
    ~Fensterprobe() override;

    /// Opens the screen, in the frame or as a child window.
    void öffne();
    QWidget& widget(const Element& element) const;
    template <class W> W& widgetAls(const Element& element) const { return dynamic_cast<W&>(widget(element)); }
    static void lasseGeschehen();

    // what a person does
    void klicke(const Element& element) const;
    static void klicke(QWidget& widget, QPoint ort, bool doppelt = false);
    void doppelklicke(const Element& element) const;
    static void drücke(QWidget& widget, int taste, const QString& text = {},
                       Qt::KeyboardModifiers zusatz = Qt::NoModifier);
    static void tippe(QWidget& widget, const QString& text);
    void dreheRad(QWidget& widget) const;
    /// The widget that has the keyboard.
    QWidget& tastatur() const;

    Testumgebung umgebung;
    Bildschirmfolge folge;
    Rahmen rahmen;
    Ablauf ablauf{umgebung, folge};
    std::unique_ptr<QtOberfläche> oberfläche;
    std::unique_ptr<Probebildschirm> bildschirm = std::make_unique<Probebildschirm>();
};
