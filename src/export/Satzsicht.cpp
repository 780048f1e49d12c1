#include "export/Satzsicht.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzgrenzen.h"

void Satzsicht::lies(std::string_view zeile, char trennzeichen)
{
    if (zeile.size() > satzgrenze::zeilenlänge) {
        throw Laufzeitfehler(verbinde("Eine Zeile ist länger als "_t, std::to_string(satzgrenze::zeilenlänge),
                                      " Zeichen: "_t, zeile.substr(0, 40)));
    }
    m_felder.clear();
    std::size_t anfang = 0;
    for (std::size_t ort = 0; ort < zeile.size(); ++ort) {
        if (zeile[ort] == trennzeichen) {
            m_felder.push_back(zeile.substr(anfang, ort - anfang));
            anfang = ort + 1;
        }
    }
    m_felder.push_back(zeile.substr(anfang));
}
