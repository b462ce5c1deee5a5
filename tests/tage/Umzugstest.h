#pragma once

#include "Tagefenstertest.h"

#include <QClipboard>
#include <QGuiApplication>

/// What the tests share that move rows about in the window of the days: a record of two days; for
/// breakfast an apple, toast or milk; for lunch water.
class Umzugstest : public Tagefenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        using Aufzeichnungsprobe::zeile;
        QGuiApplication::clipboard()->clear();
        m_probe = std::make_unique<Fensterprobe>();
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
        eine.tage[0].mahlzeiten[0].zeilen = {
            zeile(QStringLiteral("Apfel"), 150), zeile(QStringLiteral("Toast"), 40),
            Aufzeichnungsprobe::oder(zeile(QStringLiteral("Milch"), 125))};
        eine.tage[0].mahlzeiten[2].zeilen = {zeile(QStringLiteral("Wasser"), 200)};
        eine.tage[0].mahlzeiten[2].notiz = QStringLiteral("im Büro");
        buch().beginne(eine);
        QVERIFY(m_probe->aktiv);
        ansicht().setFocus();
    }

protected:
    Tagesansicht &ansicht() const { return *m_probe->fenster->ansicht; }
    void zumPlatz(const Tagesmodell::Platz &platz) const
    {
        ansicht().geheZu(platz, Tagesmodell::Name);
    }
    void waehle(const QList<Tagesmodell::Platz> &plaetze) const { ansicht().waehle(plaetze); }
    void einSchritt(int vorher) const { QCOMPARE(buch().schritte.index(), vorher + 1); }
};
