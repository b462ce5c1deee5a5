#pragma once

#include "Probesprache.h"
#include "Vorschlagsblatt.h"

#include <QComboBox>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using enum Kenngroesse;

struct Probe
{
    const char *name;
    const char *gruppe; ///< null: an own food
    float eisen;
    float natrium;
    const char *gicht;
    double portion;
    const char *angabe;
};

inline constexpr Probe proben[] = {
    {"Linsen, gekocht", "Hülsenfrüchte", 4, 10, "0", 100, "1 Portion"},
    {"Hirse, roh", "Getreide, Reis und Nudeln", 5, 0, "+", 60, "1 Portion"},
    {"Rindfleisch, gebraten", "Rind- und Kalbfleisch", 2, 60, "-", 120, "1 Stück"},
    {"Salzbrot", "Brot und Brötchen", 1, 2000, "0", 50, "1 Scheibe"},
    {"Bauernbrote", "Brot und Brötchen", 2, 500, "0", 50, "1 Scheibe"},
    {"Mutters Eintopf", nullptr, 3, 100, "0", 100, "1 Teller"},
    {"Ungewisses", "Obst", 0, 0, "0", 100, "1 Stück"},
};

inline Datenmodul satz(const Probe &probe)
{
    Datenmodul einer;
    einer.setName(QString::fromUtf8(probe.name));
    einer.setfe(probe.eisen);
    einer.setna(probe.natrium);
    for (const Wertungsbeschreibung &eine : wertungen) {
        einer.setWertung(eine.wertung, u"0"_s);
    }
    einer.setgicht(QString::fromLatin1(probe.gicht));
    return einer;
}

inline Stoffwissen wissen()
{
    Zusatztabelle tabelle;
    for (const Probe &probe : proben) {
        if (probe.gruppe != nullptr) {
            Zusatzwerte zusatz;
            zusatz.gruppe = lebensmittelgruppe(QString::fromUtf8(probe.gruppe));
            zusatz.unbestimmt[stelle(Naehrwert::fe)] = probe.eisen == 0;
            tabelle.insert(QString::fromUtf8(probe.name), zusatz);
        }
    }
    return Stoffwissen(tabelle);
}

/// A day of 100 g of salty bread: iron 1 of 11 mg, sodium 2000 of at most 1000 mg.
inline Einblickstand tag()
{
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Tag;
    stand.speisen = {{u"Salzbrot"_s, satz(proben[3]), 100, 7}};
    stand.wissen = wissen();
    stand.ziele = {{fe, 11, {}, {}}, {na, {}, 1000, {}}};
    return stand;
}

/// A sheet of suggestions on the screen, and what it shows.
class Vorschlagsblattprobe
{
protected:
    Vorschlagsblattprobe()
    {
        for (const Probe &probe : proben) {
            m_kandidaten.append({QString::fromUtf8(probe.name), satz(probe), probe.portion,
                                 QString::fromUtf8(probe.angabe)});
        }
    }

    void oeffne()
    {
        m_gefragt = 0;
        m_blatt = std::make_unique<Vorschlagsblatt>([this]() -> const Kandidaten & {
            ++m_gefragt;
            return m_kandidaten;
        });
        m_blatt->resize(420, 640);
        m_blatt->show();
        QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
        m_blatt->zeige(tag());
        QCoreApplication::processEvents(); // all is in its place
    }

    template <typename Teil>
    Teil &teil(const char *name) const
    {
        return *m_blatt->findChild<Teil *>(QLatin1String(name));
    }
    QComboBox &ziel() const { return teil<QComboBox>("ziel"); }
    QTableView &liste() const { return teil<QTableView>("vorschlaege"); }

    QString zelle(const char *tabelle, int zeile, int spalte) const
    {
        return teil<QTableView>(tabelle).model()->index(zeile, spalte).data().toString();
    }

    /// The foods of the list, each with its amount.
    QStringList namen() const
    {
        QStringList alle;
        for (int i = 0; i < liste().model()->rowCount(); ++i) {
            alle << zelle("vorschlaege", i, Vorschlagsmodell::Lebensmittel).replace(u'\n', u':');
        }
        return alle;
    }

    QStringList wirkungen() const
    {
        QStringList alle;
        const QTableView &tabelle = teil<QTableView>("wirkung");
        for (int i = 0; i < tabelle.model()->rowCount(); ++i) {
            alle << u"%1: %2 %3"_s.arg(zelle("wirkung", i, 0), zelle("wirkung", i, 1),
                                       zelle("wirkung", i, 2));
        }
        return alle;
    }

    Kandidaten m_kandidaten;
    int m_gefragt = 0; ///< how often the sheet has asked for the foods
    std::unique_ptr<Vorschlagsblatt> m_blatt;
};
