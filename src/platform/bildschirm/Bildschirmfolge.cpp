#include "platform/bildschirm/Bildschirmfolge.h"

#include <algorithm>
#include <iterator>
#include <utility>

Bildschirmfolge::Stand* Bildschirmfolge::stand(const Bildschirm& bildschirm)
{
    const auto ort = std::ranges::find(m_stände, &bildschirm, &Stand::bildschirm);
    return ort == m_stände.end() ? nullptr : &*ort;
}

const Bildschirmfolge::Stand* Bildschirmfolge::stand(const Bildschirm& bildschirm) const
{
    return const_cast<Bildschirmfolge*>(this)->stand(bildschirm);
}

void Bildschirmfolge::zeige(Bildschirm& bildschirm)
{
    Stand neu;
    if (const auto* s = stand(bildschirm)) {
        neu = *s;
        std::erase_if(m_stände, [&](const Stand& alt) { return alt.bildschirm == &bildschirm; });
    }
    neu.bildschirm = &bildschirm;
    neu.sichtbar = true;
    neu.sollAktivWerden = true;
    m_stände.push_back(neu);
    geändert.melde(bildschirm);
}

void Bildschirmfolge::verberge(Bildschirm& bildschirm)
{
    if (auto* s = stand(bildschirm)) {
        s->sichtbar = false;
        geändert.melde(bildschirm);
    }
}

void Bildschirmfolge::sperre(Bildschirm& bildschirm)
{
    if (auto* s = stand(bildschirm)) {
        s->frei = false;
        geändert.melde(bildschirm);
    }
}

void Bildschirmfolge::gibFrei(Bildschirm& bildschirm)
{
    if (auto* s = stand(bildschirm); s != nullptr && !s->frei) {
        s->frei = true;
        s->sollAktivWerden = true;
        geändert.melde(bildschirm);
    }
}

void Bildschirmfolge::entlade(Bildschirm& bildschirm)
{
    if (stand(bildschirm) == nullptr) {
        return;
    }
    verberge(bildschirm);
    bildschirm.beiEntladen();
    entladen.melde(bildschirm);
    std::erase_if(m_stände, [&](const Stand& s) { return s.bildschirm == &bildschirm; });
}

void Bildschirmfolge::öffne(Bildschirm& rufer, Bildschirm& neuer, Antwort antwort)
{
    zeige(neuer);
    auto* s = stand(neuer);
    s->aufrufer = &rufer;
    s->antwort = std::move(antwort);
}

void Bildschirmfolge::öffneStatt(Bildschirm& rufer, Bildschirm& seite)
{
    verberge(rufer);
    öffne(rufer, seite, {});
}

void Bildschirmfolge::öffneÜber(Bildschirm& rufer, Bildschirm& dialog, Antwort antwort)
{
    sperre(rufer);
    öffne(rufer, dialog, std::move(antwort));
}

void Bildschirmfolge::schließe(Bildschirm& bildschirm)
{
    if (!istGeladen(bildschirm)) {
        return;
    }
    const auto alt = *stand(bildschirm);
    if (alt.aufrufer != nullptr && !istSichtbar(*alt.aufrufer)) {
        zeige(*alt.aufrufer); // before the other one goes, so that the frame is never empty
    }
    entlade(bildschirm);
    if (alt.aufrufer != nullptr) {
        gibFrei(*alt.aufrufer);
    }
    if (alt.antwort) {
        alt.antwort();
    }
}

bool Bildschirmfolge::istGeladen(const Bildschirm& bildschirm) const
{
    return stand(bildschirm) != nullptr;
}

bool Bildschirmfolge::istSichtbar(const Bildschirm& bildschirm) const
{
    const auto* s = stand(bildschirm);
    return s != nullptr && s->sichtbar;
}

bool Bildschirmfolge::istFrei(const Bildschirm& bildschirm) const
{
    const auto* s = stand(bildschirm);
    return s != nullptr && s->frei;
}

Bildschirm* Bildschirmfolge::inGebrauch() const
{
    const auto ort =
        std::find_if(m_stände.rbegin(), m_stände.rend(), [](const Stand& s) { return s.sichtbar && s.frei; });
    return ort == m_stände.rend() ? nullptr : ort->bildschirm;
}

Bildschirm* Bildschirmfolge::finde(std::string_view name) const
{
    const auto ort =
        std::find_if(m_stände.rbegin(), m_stände.rend(), [&](const Stand& s) { return s.bildschirm->name() == name; });
    return ort == m_stände.rend() ? nullptr : ort->bildschirm;
}

std::vector<Bildschirm*> Bildschirmfolge::geladene() const
{
    std::vector<Bildschirm*> alle;
    std::ranges::transform(m_stände, std::back_inserter(alle), [](const Stand& s) { return s.bildschirm; });
    return alle;
}

void Bildschirmfolge::führeAktivierungenAus()
{
    const auto nächster = [this] {
        const auto ort =
            std::ranges::find_if(m_stände, [](const Stand& s) { return s.sollAktivWerden && s.sichtbar && s.frei; });
        return ort == m_stände.end() ? nullptr : &*ort;
    };
    while (auto* s = nächster()) {
        auto& bildschirm = *s->bildschirm;
        s->sollAktivWerden = false;
        const bool warAktiv = std::exchange(s->warAktiv, true);
        wirdAktiv.melde(bildschirm);
        if (warAktiv) {
            bildschirm.beiAktivierung();
        } else {
            bildschirm.beiÖffnung();
        }
        const bool ohneFokus = bildschirm.fokus() == nullptr || !bildschirm.istErreichbar(*bildschirm.fokus());
        if (istGeladen(bildschirm) && ohneFokus) {
            bildschirm.fokussiereErstes();
        }
    }
}
