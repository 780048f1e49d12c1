#pragma once

#include "store/Befund.h"

#include "platform/text/Datum.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

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
    using Schlüssel = std::pair<std::int32_t, std::int32_t>;
    struct Klient {
        std::size_t zeile;
        char status; ///< 'o', 'a', or 0 for none
    };
    struct Betreuung {
        std::size_t zeile;
        Zeitraum zeitraum;
    };
    using Betreuungen = std::map<Schlüssel, Betreuung>;

    void prüfeKlienten(std::int32_t kernID, const Klient& klient);
    void prüfeZeiträume(std::int32_t kernID);
    /// The client's episodes, in order of their numbers.
    std::pair<Betreuungen::const_iterator, Betreuungen::const_iterator> betreuungenVon(std::int32_t kernID) const;

    Befundliste& m_befunde;
    std::map<std::int32_t, Klient> m_klienten;
    Betreuungen m_betreuungen;
    std::map<Schlüssel, std::size_t> m_diagnosen;
    std::set<std::int32_t> m_betreute;
};
