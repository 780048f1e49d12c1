#pragma once

#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/umgebung/Umgebung.h"

#include <functional>
#include <string>

/// The course of a program run. Every action of the user, and the start itself, goes through `ereignis`: it
/// runs the rules, then lets the screens become active that were handed over to, and it is the one place
/// where a fatal failure is caught: the message is shown, and the run has ended with status 1.
///
///     ablauf.ereignis([&] { schaltfläche.klicke(); });
class Ablauf {
public:
    Ablauf(Umgebung& umgebung, Bildschirmfolge& folge) : m_umgebung(umgebung), m_folge(folge) {}

    /// Runs the action; false when the program has ended (before or by it).
    bool ereignis(const std::function<void()>& aktion);

    /// The ordinary end.
    void beende();
    /// Whether an action is being run at this moment.
    bool istInEreignis() const { return m_tiefe > 0; }
    bool läuft() const { return m_läuft; }
    int status() const { return m_status; }
    /// The message of the fatal failure, empty without one.
    const std::string& absturz() const { return m_absturz; }
    /// The title of the failure's box.
    void setzeTitel(const std::string& titel) { m_titel = titel; }

    /// Asked for a sentence below the message of a fatal failure: what helps the person on. May be empty.
    std::function<std::string()> hinweisBeiAbsturz;

    /// For the surface: the run has ended.
    Melder<> beendet;

private:
    void stürzeAb(const std::string& text);

    Umgebung& m_umgebung;
    Bildschirmfolge& m_folge;
    std::string m_titel;
    std::string m_absturz;
    int m_tiefe = 0;
    bool m_läuft = true;
    int m_status = 0;
};
