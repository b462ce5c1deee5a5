#pragma once

#include "Drucksatz.h"

#include "Druckprobe.h"

#include <QTest>

#include <memory>

/// What the tests share that break texts and tables into pages: small pages on a large paper, which
/// are printed and read back.
class Drucksatztest : public QObject
{
    Q_OBJECT

protected:
    static constexpr QPointF ecke{40, 40};
    static constexpr QSizeF seite{400, 200};

    /// Rows of two columns: "Zeile 1" and its number.
    static Drucktabelle reihen(int anzahl)
    {
        Drucktabelle tabelle{{{QStringLiteral("Name")}, {QStringLiteral("Zahl"), true}}, {}};
        for (int i = 1; i <= anzahl; ++i) {
            tabelle.zeilen << Drucktabelle::Zeile{
                {QStringLiteral("Zeile") + QString::number(i), QString::number(i)}};
        }
        return tabelle;
    }

    /// Leaves about so many points free on the first page.
    static Drucksatz mitRest(double frei)
    {
        Drucksatz satz(seite, QStringLiteral("Kopf"));
        satz.bild({seite.height() - frei, [](QPainter &) {
                   }});
        return satz;
    }

    /// Rows that tell how much is left of the first page.
    static void reste()
    {
        QTest::addColumn<double>("frei");
        for (int frei = 1; frei < 120; frei += 7) {
            QTest::addRow("%d points are left", frei) << static_cast<double>(frei);
        }
    }

    /// No word stands outside of its page.
    void drucke(const Drucksatz &satz)
    {
        m_probe =
            std::make_unique<Druckprobe>(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
        m_probe->drucke({.titel = QStringLiteral("Probe"),
                         .seitenzahl = [&satz](const QPageLayout &) { return satz.seiten(); },
                         .male =
                             [&satz](QPainter &maler, const QPageLayout &, int nummer) {
                                 satz.male(maler, ecke, nummer);
                             }});
        m_worte = m_probe->worte();
        for (const Druckwort &wort : std::as_const(m_worte)) {
            QVERIFY2(wort.x >= ecke.x() - 0.5 && wort.rechts <= ecke.x() + seite.width() + 0.5 &&
                         wort.grundlinie >= ecke.y() &&
                         wort.grundlinie <= ecke.y() + seite.height(),
                     qPrintable(wort.text));
        }
    }
    QStringList zeilen(int nummer) const { return m_probe->zeilen(nummer); }
    Druckwort wort(const QString &text) const { return finde(m_worte, text); }

    std::unique_ptr<Druckprobe> m_probe;
    QList<Druckwort> m_worte; ///< of the last print
};
