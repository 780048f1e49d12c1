#include "platform/elemente/Datumsfeld.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace {

constexpr int letzterMonat = 12;

bool istDatumszeichen(char zeichen)
{
    return (zeichen >= '0' && zeichen <= '9') || zeichen == '.';
}

/// The day, or the last one of its month where the month is shorter.
Datum imMonat(Datum datum)
{
    while (!istTagImKalender(datum)) {
        --datum.tag;
    }
    return datum;
}

/// The date with day (0), month (1) or year moved; nothing that would leave the month, the year or the calendar.
Datum verstellt(const Datum& datum, std::ptrdiff_t teil, int schritte)
{
    Datum neu = datum;
    (teil == 0 ? neu.tag : teil == 1 ? neu.monat : neu.jahr) += schritte;
    if (teil == 0) {
        return istTagImKalender(neu) ? neu : datum;
    }
    const bool gibtEs =
        neu.monat >= 1 && neu.monat <= letzterMonat && neu.jahr >= erstesDatumsjahr && neu.jahr <= letztesDatumsjahr;
    return gibtEs ? imMonat(neu) : datum;
}

Datum umTage(const Datum& datum, int tage)
{
    const auto neu = ausTageszahl(alsTageszahl(datum) + tage);
    return neu.jahr >= erstesDatumsjahr && neu.jahr <= letztesDatumsjahr ? neu : datum;
}

Datum umMonate(const Datum& datum, int monate)
{
    const int gezählt = datum.jahr * letzterMonat + datum.monat - 1 + monate;
    const Datum neu{gezählt / letzterMonat, gezählt % letzterMonat + 1, datum.tag};
    return neu.jahr >= erstesDatumsjahr && neu.jahr <= letztesDatumsjahr ? imMonat(neu) : datum;
}

constexpr auto zurück = " Esc holt das alte Datum zurück."_t;

std::string einwandGegen(const std::string& text)
{
    if (getrimmt(text).empty()) {
        return verbinde("Hier fehlt das Datum."_t, zurück);
    }
    return verbinde("„"_t, text, "“ ist kein Datum. Möglich sind TT.MM.JJJJ, TT.MM., TTMMJJ und TTMMJJJJ."_t, zurück);
}

} // namespace

void Datumsfeld::setzeDatum(const Datum& datum)
{
    if (m_datum == datum && !m_getippt) {
        return;
    }
    m_datum = datum;
    m_getippt.reset();
    if (hatFokus()) {
        wähleAlles();
    } else {
        setzeStelle(0, 0);
        meldeÄnderung();
    }
}

void Datumsfeld::streicheDurch(bool ja)
{
    if (m_durchgestrichen != ja) {
        m_durchgestrichen = ja;
        meldeÄnderung();
    }
}

void Datumsfeld::setzeStelle(std::size_t schreibmarke, std::size_t anker)
{
    const auto länge = anzeige().size();
    m_schreibmarke = std::min(schreibmarke, länge);
    m_anker = std::min(anker, länge);
}

void Datumsfeld::wähleAlles()
{
    setzeStelle(0, anzeige().size());
    meldeÄnderung();
}

bool Datumsfeld::istGanzGewählt() const
{
    return std::min(m_schreibmarke, m_anker) == 0 && std::max(m_schreibmarke, m_anker) == anzeige().size();
}

void Datumsfeld::gibEin(std::string_view text, std::size_t schreibmarke)
{
    std::string neu(text);
    std::erase(neu, ' ');
    if (std::ranges::all_of(neu, istDatumszeichen)) {
        const auto links = text.substr(0, schreibmarke);
        const auto blanks = static_cast<std::size_t>(std::ranges::count(links, ' '));
        m_getippt = neu == this->text() ? std::nullopt : std::optional(neu);
        setzeStelle(schreibmarke - blanks, schreibmarke - blanks);
        meldeÄnderung();
    } else {
        beanstande("In ein Datum gehören nur Ziffern und Punkte, zum Beispiel 2.8.2007."_t);
    }
}

void Datumsfeld::beanstande(std::string_view text)
{
    m_beanstandung = text;
    meldeÄnderung();
    beanstandet.melde();
}

std::optional<Datum> Datumsfeld::gelesen() const
{
    return m_getippt ? leseDatumseingabe(*m_getippt, heute ? heute() : m_datum) : m_datum;
}

bool Datumsfeld::schließeAb()
{
    if (!m_getippt) {
        return true;
    }
    if (const auto datum = gelesen()) {
        wähle(*datum);
        return true;
    }
    wähleAlles();
    beanstande(einwandGegen(*m_getippt));
    return false;
}

void Datumsfeld::wähle(const Datum& datum)
{
    setzeDatum(datum);
    rufe(beiWahl);
}

void Datumsfeld::fokusGewechselt(bool gekommen)
{
    m_getippt.reset();
    m_kalendertag.reset();
    if (gekommen) {
        wähleAlles();
    } else {
        setzeStelle(0, 0);
        meldeÄnderung();
    }
}

void Datumsfeld::fokusErneuert()
{
    wähleAlles();
}

/// Day, month or year by the points left of the cursor; the cursor stays where it is.
void Datumsfeld::verstelle(int schritte)
{
    const bool ganz = istGanzGewählt();
    const auto links = anzeige().substr(0, m_schreibmarke);
    const auto punkte = ganz ? 0 : std::ranges::count(links, '.');
    const auto marke = m_schreibmarke;
    if (!schließeAb()) {
        return;
    }
    wähle(verstellt(m_datum, punkte, schritte));
    if (!ganz) {
        setzeStelle(marke, marke);
        meldeÄnderung();
    }
}

bool Datumsfeld::taste(const Taste& taste)
{
    if (m_kalendertag) {
        return tasteDesKalenders(taste);
    }
    if (taste.klapptAuf()) {
        öffneKalender();
        return true;
    }
    if (taste.istKombination()) {
        return false;
    }
    switch (taste.art) {
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        verstelle(taste.art == Taste::Art::Auf ? 1 : -1);
        return true;
    case Taste::Art::Esc:
        if (!m_getippt) {
            return false;
        }
        m_getippt.reset();
        wähleAlles();
        return true;
    default:
        return false;
    }
}

void Datumsfeld::öffneKalender()
{
    if (istFrei()) {
        stelleKalender(gelesen().value_or(m_datum));
    }
}

void Datumsfeld::schließeKalender()
{
    if (m_kalendertag) {
        m_kalendertag.reset();
        meldeÄnderung();
    }
}

void Datumsfeld::stelleKalender(const Datum& tag)
{
    m_kalendertag = tag;
    meldeÄnderung();
}

bool Datumsfeld::tasteDesKalenders(const Taste& taste)
{
    if (taste.klapptAuf() || taste.art == Taste::Art::Esc) {
        schließeKalender();
        return true;
    }
    constexpr int woche = 7;
    const Datum tag = *m_kalendertag;
    switch (taste.art) {
    case Taste::Art::Links:
    case Taste::Art::Rechts:
        stelleKalender(umTage(tag, taste.art == Taste::Art::Links ? -1 : 1));
        break;
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        stelleKalender(umTage(tag, taste.art == Taste::Art::Auf ? -woche : woche));
        break;
    case Taste::Art::BildAuf:
    case Taste::Art::BildAb:
        stelleKalender(umMonate(tag, taste.art == Taste::Art::BildAuf ? -1 : 1));
        break;
    case Taste::Art::Pos1:
        stelleKalender({tag.jahr, tag.monat, 1});
        break;
    case Taste::Art::Ende:
        stelleKalender(imMonat({tag.jahr, tag.monat, 31}));
        break;
    case Taste::Art::Eingabe:
        m_kalendertag.reset();
        wähle(tag);
        break;
    default:
        break;
    }
    return true;
}
