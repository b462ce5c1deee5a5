#pragma once

#include "Rangliste.h"
#include "Ranglistenfenster.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QTest>

#include <memory>

/// The window of the ranks with a few foods, and what its user sees.
class Rangprobe
{
public:
    Rangprobe()
    {
        // Fibre in g, iron in mg, sodium in mg; a 0 of a built-in food is known but for `unklar`.
        gib("Linsen", 17, 8, 4);
        gib("Äpfel", 2, 0.5F, 1);
        gib("Brot", 5, 2, 500);
        gib("Käse", 0, 0, 700);
        gib("Zucker", 0, 0, 0);
        speisen << Kandidat{.schluessel = QStringLiteral("-"), .satz = {}};
        zusatz[QStringLiteral("Käse")].unbestimmt[stelle(Naehrwert::fe)] = true;
        for (auto einer = zusatz.begin(); einer != zusatz.end(); ++einer) {
            einer->gruppe =
                lebensmittelgruppe(einer.key() == QStringLiteral("Äpfel") ? QStringLiteral("Obst")
                                                                          : QStringLiteral("Käse"));
        }
        masse[QStringLiteral("Brot")] = {mass("Scheibe", "Scheiben", "slice", "slices", 50)};
        masse[QStringLiteral("Äpfel")] = {mass("Stück", "Stück", "piece", "pieces", 150)};
        fenster = std::make_unique<Ranglistenfenster>(tueren(), nullptr);
        QObject::connect(fenster.get(), &Ranglistenfenster::lebensmittelGewuenscht, fenster.get(),
                         [this](const QString &schluessel) { gezeigte << schluessel; });
        QObject::connect(fenster.get(), &Ranglistenfenster::planGewuenscht, fenster.get(),
                         [this](const QString &schluessel) { geplante << schluessel; });
    }

    static Mass mass(const char *eines, const char *viele, const char *einesEn, const char *vieleEn,
                     double gramm)
    {
        return {QString::fromUtf8(eines), QString::fromUtf8(viele), QString::fromUtf8(einesEn),
                QString::fromUtf8(vieleEn), gramm};
    }

    /// A built-in food of 100 kcal, rated "+" for gout and "0" for all else.
    void gib(const char *name, float ballaststoffe, float eisen, float natrium)
    {
        const QString schluessel = QString::fromUtf8(name);
        Kandidat eines{.schluessel = schluessel, .satz = {}};
        eines.satz.setkal(100);
        eines.satz.setbs(ballaststoffe);
        eines.satz.setfe(eisen);
        eines.satz.setna(natrium);
        for (const Wertungsbeschreibung &eine : wertungen) {
            eines.satz.setWertung(eine.wertung, eine.wertung == Wertung::gicht
                                                    ? QStringLiteral("+")
                                                    : QStringLiteral("0"));
        }
        speisen << eines;
        zusatz.insert(schluessel, {});
    }

    Ranglistentueren tueren()
    {
        return {.lebensmittel = [this] { return speisen; },
                .masse = [this](const QString &schluessel) { return masse.value(schluessel); },
                .wissen =
                    [this] {
                        return Stoffwissen(zusatz);
                    }};
    }

    bool oeffne()
    {
        fenster->zeige();
        return QTest::qWaitForWindowActive(fenster.get());
    }

    template <typename Teil>
    Teil &teil(const char *name) const
    {
        return *fenster->findChild<Teil *>(QString::fromUtf8(name));
    }

    QTableView &tabelle() const { return teil<QTableView>("rangliste"); }

    /// The rows of the table as they are read: rank, name and figure.
    QStringList zeilen() const
    {
        QStringList alle;
        for (int i = 0; i < tabelle().model()->rowCount(); ++i) {
            alle << QStringLiteral("%1 %2: %3").arg(zelle(i, 0), zelle(i, 1), zelle(i, 3));
        }
        return alle;
    }

    QString zelle(int zeile, int spalte) const
    {
        return tabelle().model()->index(zeile, spalte).data().toString();
    }

    QString name(int zeile) const { return zelle(zeile, 1); }

    QString wort(const char *name) const
    {
        const auto &feld = teil<QLabel>(name);
        return feld.isVisible() ? feld.text() : QString();
    }

    /// Chooses an entry with the keyboard, as its user does.
    static void waehle(QComboBox &wahl, const QString &eintrag)
    {
        wahl.setFocus();
        const int ziel = wahl.findText(eintrag);
        QVERIFY2(ziel >= 0, qPrintable(eintrag));
        while (wahl.currentIndex() != ziel) {
            QTest::keyClick(&wahl, wahl.currentIndex() < ziel ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    void waehle(const char *name, const QString &eintrag) const
    {
        waehle(teil<QComboBox>(name), eintrag);
    }

    void taste(Qt::Key eine, Qt::KeyboardModifiers dazu = Qt::NoModifier) const
    {
        QTest::keyClick(&tabelle(), eine, dazu);
    }

    /// Where the mouse hits a cell.
    QPoint ort(int zeile, int spalte) const
    {
        return tabelle().visualRect(tabelle().model()->index(zeile, spalte)).center();
    }

    QList<Kandidat> speisen;
    Zusatztabelle zusatz;
    QHash<QString, QList<Mass>> masse;
    QStringList gezeigte;
    QStringList geplante;
    std::unique_ptr<Ranglistenfenster> fenster;
};
