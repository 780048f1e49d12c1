#include "hilfen/Schreibhandlungen.h"

#include "platform/text/Eingabe.h"

#include <stdexcept>

namespace {

void beginneBetreuung(Hand& hand)
{
    hand.klicke("cmdBetreuungHinzufügen"_t);
    hand.klicke("cmdOK"_t); // begin
    hand.klicke("cmdOK"_t); // end
}

void ändereBetreuung(Hand& hand)
{
    hand.klicke("cmdBetreuungBearbeiten"_t);
    hand.wähle("comboWieder"_t, 2);
}

void beginneKlient(Hand& hand)
{
    hand.klicke("cmdKlientenHinzufügen"_t);
    hand.tippe("tbNachname"_t, "Zeisig"_t);
}

void wähleZweiten(Hand& hand)
{
    hand.klickeZeile("lvwKlienten"_t, 2);
}

void löscheKlient(Hand& hand)
{
    hand.klicke("cmdKlientenLöschen"_t);
}

void löscheZweiten(Hand& hand)
{
    wähleZweiten(hand);
    löscheKlient(hand);
}

void löscheBetreuung(Hand& hand)
{
    hand.klicke("cmdBetreuungLöschen"_t);
}

void machRückgängig(Hand& hand)
{
    hand.klicke("cmdRollback"_t);
}

void beginneImport(Hand& hand)
{
    hand.klicke("cmdDatenübernahme"_t);
    hand.tippe("tbKernDatAlt"_t, "alt/kernDat.txt"_t);
    hand.tippe("tbBetrDatAlt"_t, "alt/betreuungenDat.txt"_t);
}

void nichts(Hand& /*hand*/)
{}

void bestätige(Hand& hand)
{
    hand.klicke("cmdOK"_t);
}

} // namespace

template <class F> void Hand::tue(std::string_view name, F aktion)
{
    m_programm.zustand().ablauf.ereignis([&] {
        auto* bildschirm = m_programm.zustand().folge.inGebrauch();
        auto* element = bildschirm == nullptr ? nullptr : bildschirm->finde(name);
        if (element == nullptr || !bildschirm->istErreichbar(*element)) {
            throw std::logic_error("out of reach: " + alsUtf8(name));
        }
        if (!element->nimmtFokus() || bildschirm->fokussiere(element)) {
            aktion(*element);
        }
    });
}

void Hand::klicke(std::string_view name)
{
    tue(name, [](Element& element) { element.klicke(); });
}

void Hand::tippe(std::string_view name, std::string_view text)
{
    tue(name, [text](Element& element) { dynamic_cast<Textfeld&>(element).gibEin(text, text.size()); });
}

void Hand::tippeZahl(std::string_view name, std::string_view text)
{
    tue(name, [text](Element& element) { dynamic_cast<Auswahlfeld&>(element).gibEin(text, text.size()); });
}

void Hand::wähle(std::string_view name, std::size_t eintrag)
{
    tue(name, [eintrag](Element& element) { dynamic_cast<Auswahlfeld&>(element).wähle(eintrag); });
}

void Hand::klickeZeile(std::string_view name, std::size_t zeile)
{
    tue(name, [zeile](Element& element) { dynamic_cast<Liste&>(element).klickeZeile(zeile); });
}

const std::vector<Schreibhandlung>& schreibhandlungen()
{
    static const std::vector<Schreibhandlung> alle{
        {"neue-betreuung", beginneBetreuung, bestätige},
        {"betreuung-aendern", ändereBetreuung, bestätige},
        {"betreuung-loeschen", nichts, löscheBetreuung},
        {"klient-neu", beginneKlient, bestätige},
        {"klient-loeschen", wähleZweiten, löscheKlient},
        {"rollback", löscheZweiten, machRückgängig},
        {"import", beginneImport, bestätige},
    };
    return alle;
}
