#include "import/Eingabedatei.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzgrenzen.h"

std::int32_t Eingabedatei::leseNummer(std::string_view text) const
{
    const auto nummer = leseGanzzahl16(text);
    if (!nummer || *nummer < 1) {
        throw Laufzeitfehler(verbinde("\""_t, text, "\" in \""_t, pfadtext(m_pfad), "\" ist keine Nummer von 1 bis "_t,
                                      alsText(satzgrenze::höchsteNummer), '.'));
    }
    return *nummer;
}
