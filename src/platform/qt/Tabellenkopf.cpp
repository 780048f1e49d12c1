#include "platform/qt/Elementzeichner.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace {

Etikett* formeTitel(Etikett* titel, bool linksbündig)
{
    titel->brichAmBindestrich();
    titel->setFont(schrift(Schriftrolle::Spaltenkopf));
    titel->setProperty("rolle", "kopf");
    titel->setAlignment((linksbündig ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignBottom);
    titel->setWordWrap(true);
    titel->setIndent(0); // it would lift the text as well
    titel->setContentsMargins(linksbündig ? em(0.45) : 0, 0, 0, 0);
    titel->setAccessibleName(gesprochen(titel->text()));
    return titel;
}

Etikett* macheTitel(const std::string& text, QWidget* eltern, bool linksbündig = false)
{
    return text.empty() ? nullptr : formeTitel(new Etikett(alsMehrzeiler(text), eltern), linksbündig);
}

} // namespace

Tabellenkopf::Tabellenkopf(const Anordnung& tabelle, Form form, Ansicht& ansicht, QWidget* eltern)
    : QWidget(eltern), m_form(form),
      m_titel(new Etikett(form == Form::Tabelle ? alsQString(tabelle.text) : QString(), this))
{
    m_titel->setFont(schrift(Schriftrolle::Kartentitel));
    m_titel->setHidden(form == Form::Listung);
    m_fußhöhe = m_titel->text().isEmpty() ? 0 : m_titel->QLabel::sizeHint().height();
    for (const auto& spalte : tabelle.spalten) {
        const bool linksbündig = form == Form::Listung && m_titelzeile.size() < linksbündigeSpalten;
        m_titelzeile.push_back(
            spalte.kopf == nullptr
                ? macheTitel(spalte.titel, this, linksbündig)
                : formeTitel(dynamic_cast<Etikett*>(zeichneElement(*spalte.kopf, ansicht, this)), linksbündig));
    }
    baueFüller(tabelle, ansicht);
    baueGruppen(tabelle.spalten);
}

void Tabellenkopf::baueFüller(const Anordnung& tabelle, Ansicht& ansicht)
{
    for (const auto& spalte : tabelle.spalten) {
        m_füller.push_back(spalte.füller == nullptr ? nullptr : zeichneElement(*spalte.füller, ansicht, this));
        if (m_füller.back() != nullptr) {
            const auto name = verbinde(tabelle.text, ' ', spalte.gruppe, ' ', spalte.titel);
            benenneFüller(*m_füller.back(), name);
            m_fußhöhe = std::max(m_fußhöhe, m_füller.back()->maximumHeight() + em(0.2));
        }
    }
}

void Tabellenkopf::baueGruppen(const std::vector<Tabellenspalte>& spalten)
{
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        const auto& name = spalten[i].gruppe;
        if (i > 0 && !name.empty() && spalten[i - 1].gruppe == name) {
            m_gruppen.back().bis = i;
        } else if (!name.empty()) {
            m_gruppen.push_back({macheTitel(name, this), i, i});
        }
    }
}

std::vector<Etikett*> Tabellenkopf::etiketten(std::size_t spalte) const
{
    std::vector<Etikett*> alle;
    for (const auto& gruppe : m_gruppen) {
        if (gruppe.von <= spalte && spalte <= gruppe.bis) {
            alle.push_back(gruppe.titel);
        }
    }
    if (m_titelzeile[spalte] != nullptr) {
        alle.push_back(m_titelzeile[spalte]);
    }
    return alle;
}

int Tabellenkopf::titelhöhe(std::size_t von, std::size_t bis, const std::vector<int>& spalten) const
{
    int höhe = 0;
    for (auto i = von; i <= bis; ++i) {
        höhe = std::max(höhe, m_titelzeile[i] == nullptr ? 0 : m_titelzeile[i]->heightForWidth(spalten[i]));
    }
    return höhe;
}

void Tabellenkopf::ordne(int breite, const std::vector<int>& spalten)
{
    std::vector<int> links{std::max(0, breite - std::accumulate(spalten.begin(), spalten.end(), 0))};
    for (const int spalte : spalten) {
        links.push_back(links.back() + spalte);
    }
    const int titel = titelhöhe(0, spalten.size() - 1, spalten);
    const int abstand = m_form == Form::Tabelle ? em(0.3) : 0; // for the line under a group
    int fuß = titel;
    for (const auto& gruppe : m_gruppen) {
        const int eigene = titelhöhe(gruppe.von, gruppe.bis, spalten);
        fuß = std::max(fuß, gruppe.titel->heightForWidth(links[gruppe.bis + 1] - links[gruppe.von]) + abstand + eigene);
    }
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        if (m_titelzeile[i] != nullptr) {
            m_titelzeile[i]->setGeometry(links[i], fuß - titel, spalten[i], titel);
        }
        if (auto* füller = m_füller[i]) {
            const QSize größe = füller->maximumSize();
            füller->setGeometry(links[i] + (spalten[i] - größe.width()) / 2, fuß + em(0.2), größe.width(),
                                größe.height());
        }
    }
    for (const auto& gruppe : m_gruppen) {
        const int eigene = titelhöhe(gruppe.von, gruppe.bis, spalten);
        gruppe.titel->setGeometry(links[gruppe.von], 0, links[gruppe.bis + 1] - links[gruppe.von],
                                  fuß - eigene - abstand);
        for (auto i = gruppe.von; i <= gruppe.bis; ++i) {
            if (m_titelzeile[i] != nullptr) {
                m_titelzeile[i]->setGeometry(links[i], fuß - eigene, spalten[i], eigene);
            }
        }
    }
    m_höhe = fuß + m_fußhöhe + em(m_form == Form::Tabelle ? 0.35 : 0.25);
    m_titel->setGeometry(em(0.28), m_höhe - em(1.6), links.front() - em(0.3), em(1.4));
    setGeometry(0, 0, breite, m_höhe);
}

void Tabellenkopf::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter maler(this);
    const auto& f = farben();
    maler.fillRect(0, height() - 1, width(), 1, f.feldrand);
    for (const auto& gruppe : m_gruppen) {
        const QRect titel = gruppe.titel->geometry();
        if (m_form == Form::Tabelle) {
            maler.fillRect(titel.left() + 4, titel.height() + em(0.3) - em(0.15), titel.width() - 8, 1, f.feldrand);
        }
    }
}
