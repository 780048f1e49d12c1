#include "platform/qt/Ansicht.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>

namespace {

enum Kopfzeile { gruppenzeile, strichzeile, titelzeile, lücke, füllerzeile };

constexpr double breiteFrei = 12; ///< least width of a column that shares what is left
constexpr std::size_t linksbündige = 2;

bool istListung(const Anordnung& tabelle)
{
    return tabelle.wort == Anordnung::Wort::Listung;
}

/// A head that wraps at this width, 0: nowhere.
Etikett* formeKopf(Etikett* kopf, double breite)
{
    kopf->brichAmBindestrich();
    kopf->setFont(schrift(Schriftrolle::Spaltenkopf));
    kopf->setProperty("rolle", "kopf");
    kopf->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    kopf->setIndent(0); // it would lift the text as well
    kopf->setAccessibleName(gesprochen(kopf->text()));
    if (breite > 0) {
        kopf->setzeUmbruchbreite(em(breite));
    }
    return kopf;
}

} // namespace

void richteSpaltenEin(QGridLayout& gitter, const Anordnung& tabelle)
{
    bool hatFreie = false;
    for (std::size_t i = 0; i < tabelle.spalten.size(); ++i) {
        const double breite = tabelle.spalten[i].breite;
        gitter.setColumnMinimumWidth(gitterspalte(tabelle, i), em(breite > 0 ? breite : breiteFrei));
        gitter.setColumnStretch(gitterspalte(tabelle, i), breite > 0 ? 0 : 1);
        hatFreie = hatFreie || breite <= 0;
    }
    if (!hatFreie) {
        gitter.setColumnStretch(0, 1);
    }
}

int gitterspalte(const Anordnung& tabelle, std::size_t spalte)
{
    return static_cast<int>(spalte) + (istListung(tabelle) ? 0 : 1);
}

bool istLinksbündig(const Anordnung& tabelle, std::size_t spalte)
{
    return istListung(tabelle) && spalte < linksbündige;
}

Tabellenkopf::Tabellenkopf(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern)
    : QWidget(eltern), m_etiketten(tabelle.spalten.size())
{
    auto* gitter = ohneRand(new QGridLayout(this));
    gitter->setContentsMargins(0, 0, 0, em(istListung(tabelle) ? 0.25 : 0.35));
    richteSpaltenEin(*gitter, tabelle);
    if (!istListung(tabelle) && !tabelle.text.empty()) {
        auto* titel = new Etikett(alsQString(tabelle.text), this);
        titel->setFont(schrift(Schriftrolle::Kartentitel));
        titel->setContentsMargins(em(0.28), 0, 0, 0);
        gitter->addWidget(titel, füllerzeile, 0, Qt::AlignBottom);
    }
    baueTitel(tabelle, ansicht, *gitter);
    baueFüller(tabelle, ansicht, *gitter);
    baueGruppen(tabelle, *gitter);
}

void Tabellenkopf::baueTitel(const Anordnung& tabelle, Ansicht& ansicht, QGridLayout& gitter)
{
    for (std::size_t i = 0; i < tabelle.spalten.size(); ++i) {
        const auto& spalte = tabelle.spalten[i];
        if (spalte.titel.empty()) {
            continue;
        }
        auto* titel = spalte.kopf == nullptr ? new Etikett(alsMehrzeiler(spalte.titel), this)
                                             : dynamic_cast<Etikett*>(ansicht.zeichne(*spalte.kopf, this));
        formeKopf(titel, spalte.breite);
        if (istLinksbündig(tabelle, i)) {
            titel->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
            titel->setContentsMargins(em(0.45), 0, 0, 0);
        }
        const int oben = spalte.gruppe.empty() ? gruppenzeile : titelzeile;
        gitter.addWidget(titel, oben, gitterspalte(tabelle, i), titelzeile - oben + 1, 1);
        m_etiketten[i].push_back(titel);
    }
}

void Tabellenkopf::baueFüller(const Anordnung& tabelle, Ansicht& ansicht, QGridLayout& gitter)
{
    for (std::size_t i = 0; i < tabelle.spalten.size(); ++i) {
        const auto& spalte = tabelle.spalten[i];
        if (spalte.füller != nullptr) {
            auto* füller = ansicht.zeichne(*spalte.füller, this);
            benenneFüller(*füller, verbinde(tabelle.text, ' ', spalte.gruppe, ' ', spalte.titel));
            gitter.setRowMinimumHeight(lücke, em(0.2));
            gitter.setRowMinimumHeight(füllerzeile, füller->maximumHeight()); // its style would take less
            gitter.addWidget(füller, füllerzeile, gitterspalte(tabelle, i), Qt::AlignHCenter);
        }
    }
}

void Tabellenkopf::baueGruppen(const Anordnung& tabelle, QGridLayout& gitter)
{
    const auto& spalten = tabelle.spalten;
    for (std::size_t von = 0, bis = 0; von < spalten.size(); von = bis) {
        double breite = 0;
        for (bis = von; bis < spalten.size() && spalten[bis].gruppe == spalten[von].gruppe; ++bis) {
            breite += spalten[bis].breite;
        }
        if (spalten[von].gruppe.empty()) {
            continue;
        }
        auto* gruppe = formeKopf(new Etikett(alsMehrzeiler(spalten[von].gruppe), this), breite);
        gitter.addWidget(gruppe, gruppenzeile, gitterspalte(tabelle, von), 1, static_cast<int>(bis - von));
        for (auto i = von; i < bis; ++i) {
            m_etiketten[i].insert(m_etiketten[i].begin(), gruppe);
        }
        if (!istListung(tabelle)) {
            gitter.setRowMinimumHeight(strichzeile, em(0.3));
            m_unterstrichen.push_back(gruppe);
        }
    }
}

void Tabellenkopf::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter maler(this);
    maler.fillRect(0, height() - 1, width(), 1, farben().feldrand);
    for (const auto* gruppe : m_unterstrichen) {
        const QRect titel = gruppe->geometry();
        maler.fillRect(titel.left() + 4, titel.height() + em(0.3) - em(0.15), titel.width() - 8, 1, farben().feldrand);
    }
}
