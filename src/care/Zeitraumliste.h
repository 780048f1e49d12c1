#pragma once

#include "platform/text/Datum.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The rules that keep two care episodes of one client from sharing a day. Dates are texts TT.MM.JJJJ; an end
/// may be "offen". A row whose dates can't be read ends in a Laufzeitfehler (vergleicheDatum).
struct Zeitraum {
    std::string von;
    std::string bis;

    bool istOffen() const;
};

/// All stored episodes of one client, ascending by begin.
using Zeitraumliste = std::vector<Zeitraum>;

/// Whether the text stands for an end that is still open.
bool istOffenesEnde(std::string_view bis);

/// The client's episodes as they lie in the care table. A key that is no number is a Laufzeitfehler.
Zeitraumliste leseZeitraumListe(std::int32_t kernID);
/// Ascending by begin; rows with equal begins keep their order.
void sortiereNachBeginn(Zeitraumliste& liste);

/// The latest day at or before today that lies in no episode.
std::string findeFreienTag(const Zeitraumliste& liste, const Datum& heute);

/// What the tests of begin and end look at: the other episodes, and the begin by which the episode's own row
/// is known (none for a new episode: no row is its own). A stored begin may be empty, too.
struct Nachbarn {
    const Zeitraumliste& liste;
    std::optional<std::string_view> eigenerBeginn;
};

/// Whether an episode may begin on the day.
bool prüfeVon(const Nachbarn& nachbarn, std::string_view kandidat);
/// Whether an episode that begins on `von` may end on the day, or stay open.
bool prüfeBis(const Nachbarn& nachbarn, std::string_view von, std::string_view kandidat);
