#include "oberflaeche/Oberflaeche.h"

#include <algorithm>

Bildschirm* tastaturbildschirm(const Bildschirmfolge& folge, const Bildschirm* zuletzt)
{
    const auto geladene = folge.geladene();
    const auto ort = std::find(geladene.begin(), geladene.end(), zuletzt);
    const bool nochDa = ort != geladene.end() && folge.istSichtbar(**ort) && folge.istFrei(**ort);
    return nochDa ? *ort : folge.inGebrauch();
}
