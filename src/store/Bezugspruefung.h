#pragma once

#include "store/Befund.h"
#include "store/Lesestand.h"

#include "platform/text/Datum.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>

/// What the records of the three tables say of each other: an index that is filled in one pass over each table, and
/// judged at its end.
class Bezugsprüfung {
public:
    struct Zeitraum {
        std::optional<Datum> von;
        std::optional<Datum> bis; ///< none while the episode is open, or when it can't be read
        bool offen = false;
    };

    explicit Bezugsprüfung(Befundliste& befunde) : m_befunde(befunde) {}

    void nimmKlienten(std::size_t zeile, std::int32_t kernID, std::string_view status);
    void nimmBetreuung(std::size_t zeile, std::int32_t kernID, std::int32_t betrID, const Zeitraum& zeitraum);
    void nimmDiagnose(std::size_t zeile, std::int32_t kernID, std::int32_t betrID);
    void schließeAb();

private:
    struct Betreuung {
        std::size_t zeile;
        Zeitraum zeitraum;
    };
    /// What the tables hold of a client, the episodes in order of their numbers.
    struct Klient {
        std::size_t zeile = 0; ///< 0: the client table lacks it
        char status = 0;       ///< 'o', 'a', or 0 for none
        std::map<std::int32_t, Betreuung> betreuungen{};
        std::map<std::int32_t, std::size_t> diagnosen{};
    };

    void meldeDoppelte(Tabelle tabelle, std::size_t zeile, const Satzschlüssel& schlüssel, std::size_t erste);
    void prüfeStatus(const Klient& klient);
    void prüfePartner(std::int32_t kernID, const Klient& klient);
    void prüfeZeiträume(std::int32_t kernID, const Klient& klient);

    Befundliste& m_befunde;
    std::map<std::int32_t, Klient> m_klienten;
};
