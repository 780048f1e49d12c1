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

Etikett* formeTitel(Etikett* titel)
{
    titel->brichAmBindestrich();
    titel->setFont(schrift(Schriftrolle::Spaltenkopf));
    titel->setProperty("rolle", "kopf");
    titel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    titel->setWordWrap(true);
    titel->setIndent(0);
    titel->setAccessibleName(gesprochen(titel->text()));
    return titel;
}

Etikett* macheTitel(const std::string& text, QWidget* eltern)
{
    return text.empty() ? nullptr : formeTitel(new Etikett(alsMehrzeiler(text), eltern));
}

Etikett* macheTitel(const Tabellenspalte& spalte, Ansicht& ansicht, QWidget* eltern)
{
    return spalte.kopf == nullptr ? macheTitel(spalte.titel, eltern)
                                  : formeTitel(dynamic_cast<Etikett*>(zeichneElement(*spalte.kopf, ansicht, eltern)));
}

} // namespace

Tabellenkopf::Tabellenkopf(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern)
    : QWidget(eltern), m_titel(new Etikett(alsQString(tabelle.text), this))
{
    m_titel->setFont(schrift(Schriftrolle::Kartentitel));
    std::vector<int> breiten;
    for (const auto& spalte : tabelle.spalten) {
        breiten.push_back(em(spalte.breite));
        m_titelzeile.push_back(macheTitel(spalte, ansicht, this));
    }
    baueFüller(tabelle, ansicht);
    baueGruppen(tabelle, breiten);
    messe(breiten);
}

void Tabellenkopf::baueFüller(const Anordnung& tabelle, Ansicht& ansicht)
{
    for (const auto& spalte : tabelle.spalten) {
        m_füller.push_back(spalte.füller == nullptr ? nullptr : zeichneElement(*spalte.füller, ansicht, this));
        if (m_füller.back() != nullptr) {
            const auto name = verbinde(tabelle.text, ' ', spalte.gruppe, ' ', spalte.titel);
            benenneFüller(*m_füller.back(), name);
        }
    }
}

void Tabellenkopf::baueGruppen(const Anordnung& tabelle, const std::vector<int>& spalten)
{
    for (std::size_t i = 0; i < tabelle.spalten.size(); ++i) {
        const auto& name = tabelle.spalten[i].gruppe;
        if (name.empty()) {
            continue;
        }
        if (!m_gruppen.empty() && m_gruppen.back().bis + 1 == i && tabelle.spalten[i - 1].gruppe == name) {
            m_gruppen.back().bis = i;
        } else {
            m_gruppen.push_back({macheTitel(name, this), i, i, {}});
        }
    }
    for (const auto& gruppe : m_gruppen) {
        const int breite = std::accumulate(spalten.begin() + static_cast<std::ptrdiff_t>(gruppe.von),
                                           spalten.begin() + static_cast<std::ptrdiff_t>(gruppe.bis) + 1, 0);
        m_gruppenhöhe = std::max(m_gruppenhöhe, gruppe.titel->heightForWidth(breite) + em(0.3));
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

void Tabellenkopf::messe(const std::vector<int>& spalten)
{
    for (std::size_t i = 0; i < m_titelzeile.size(); ++i) {
        if (m_titelzeile[i] != nullptr) {
            m_titelhöhe = std::max(m_titelhöhe, m_titelzeile[i]->heightForWidth(spalten[i]));
        }
    }
    m_fußhöhe = m_titel->text().isEmpty() ? 0 : m_titel->QLabel::sizeHint().height();
    for (const auto* füller : m_füller) {
        if (füller != nullptr) {
            m_fußhöhe = std::max(m_fußhöhe, füller->maximumHeight() + em(0.2));
        }
    }
    m_höhe = m_gruppenhöhe + m_titelhöhe + m_fußhöhe + em(0.35);
}

void Tabellenkopf::ordne(int breite, const std::vector<int>& spalten)
{
    const int fuß = m_gruppenhöhe + m_titelhöhe;
    const int anfang = breite - std::accumulate(spalten.begin(), spalten.end(), 0);
    m_titel->setGeometry(em(0.28), m_höhe - em(1.6), anfang - em(0.3), em(1.4));
    std::vector<int> links{anfang};
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        links.push_back(links.back() + spalten[i]);
        if (m_titelzeile[i] != nullptr) {
            m_titelzeile[i]->setGeometry(links[i], m_gruppenhöhe, spalten[i], m_titelhöhe);
        }
        if (auto* füller = m_füller[i]) {
            const QSize größe = füller->maximumSize();
            füller->setGeometry(links[i] + (spalten[i] - größe.width()) / 2, fuß + em(0.2), größe.width(),
                                größe.height());
        }
    }
    for (auto& gruppe : m_gruppen) {
        const int gruppenbreite = links[gruppe.bis + 1] - links[gruppe.von];
        gruppe.titel->setGeometry(links[gruppe.von], 0, gruppenbreite, m_gruppenhöhe - em(0.3));
        gruppe.unterstrich = QRect(links[gruppe.von] + 4, m_gruppenhöhe - em(0.15), gruppenbreite - 8, 1);
    }
}

void Tabellenkopf::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter maler(this);
    const auto& f = farben();
    maler.fillRect(0, height() - 1, width(), 1, f.feldrand);
    for (const auto& gruppe : m_gruppen) {
        maler.fillRect(gruppe.unterstrich, f.feldrand);
    }
}
