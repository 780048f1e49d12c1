#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Ordnersperre.h"
#include "platform/umgebung/Laufort.h"
#include "platform/umgebung/Umgebung.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class QMessageBox;
class Tabellenprogramm;

/// The outside world of a person at a desktop. QApplication must exist.
class QtUmgebung : public Umgebung {
public:
    QtUmgebung(Tabellenprogramm& tabellenprogramm, Laufort laufort);

    Datum heute() override;
    std::filesystem::path programmordner() override { return m_laufort.programmordner; }
    std::filesystem::path installation() override { return m_laufort.installation; }
    bool istMuster() override { return m_laufort.istMuster; }
    bool istErsteInstanz(const std::filesystem::path& datenordner) override;
    Dateien& dateien() override { return m_dateien; }

    Antwort zeigeMeldung(const Meldung& meldung) override;
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& wahl) override;

    bool findeTabellenprogramm() override;
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double anteil)>& fortschritt) override;

    Größe bildschirmgröße() override;
    void zeichne() override;
    void zeichneGelegentlich() override;
    void lasseEreignisseZu() override;

private:
    bool istBildFällig();

    Tabellenprogramm& m_tabellenprogramm;
    Laufort m_laufort;
    Dateien m_dateien;
    Systemgriff m_sperre;
    QElapsedTimer m_seitDemBild;
};

/// The message box of a message, not shown yet.
std::unique_ptr<QMessageBox> baueMeldungsfenster(const Meldung& meldung);
/// What the button of that box means; closed without one it is what Escape presses.
Antwort antwortVon(const QMessageBox& fenster);
/// The pairs of name and pattern, separated by "|", as Qt's file dialogue takes them.
QString alsQtFilter(const std::string& filter);
