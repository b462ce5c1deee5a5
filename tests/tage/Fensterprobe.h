#pragma once

#include "Aufzeichnungsprobe.h"
#include "Probeablage.h"
#include "Tagefenster.h"

#include <QApplication>
#include <QHash>
#include <QTest>

#include <memory>

/// The window of the days with foods of its own, and the keys of its user.
class Fensterprobe
{
public:
    using Art = Tagesmodell::Art;
    using Platz = Tagesmodell::Platz;

    Fensterprobe()
    {
        for (const char *name : {"Apfel", "Apfelkuchen", "Toast", "Milch", "Wasser"}) {
            const QString einer = QString::fromUtf8(name);
            speisen.insert(einer, Aufzeichnungsprobe::speise(einer, 100));
            namen << einer;
        }
        masse[QStringLiteral("Apfel")] = {mass("Stück", "Stück", "piece", "pieces", 150)};
        masse[QStringLiteral("Toast")] = {mass("Scheibe", "Scheiben", "slice", "slices", 20),
                                          mass("Packung", "Packungen", "pack", "packs", 500)};
        masse[QStringLiteral("Milch")] = {mass("Tasse", "Tassen", "cup", "cups", 125),
                                          mass("EL", "EL", "tbsp", "tbsp", 10)};
        fenster = std::make_unique<Tagefenster>(ablage, tueren());
        fenster->resize(1200, 700);
        fenster->zeige();
        aktiv = QTest::qWaitForWindowActive(fenster.get());
    }

    static Mass mass(const char *eines, const char *viele, const char *einesEn, const char *vieleEn,
                     double gramm)
    {
        return {QString::fromUtf8(eines), QString::fromUtf8(viele), QString::fromUtf8(einesEn),
                QString::fromUtf8(vieleEn), gramm};
    }

    Tagetueren tueren()
    {
        Tagetueren alle;
        alle.melde = [this](QWidget *, const Meldung &meldung) {
            gefragt << meldung.text;
            return antwort;
        };
        alle.suche = [this](const QString &text) {
            return namenSuchen({}, namen, namen, text);
        };
        alle.lebensmittel = [this](const QString &schluessel) {
            const auto stelle = speisen.constFind(schluessel);
            return stelle == speisen.constEnd() ? nullptr : &*stelle;
        };
        alle.masse = [this](const QString &schluessel) {
            return masse.value(schluessel);
        };
        alle.bedarf = [this] {
            return bedarf;
        };
        alle.heute = [] {
            return QDate(2026, 11, 23);
        };
        alle.legeAufTisch = [this](const QList<Planmenge> &posten) {
            gelegt = legtAufTisch ? posten : gelegt;
            return legtAufTisch;
        };
        alle.planVomTisch = [this] {
            return plan;
        };
        alle.abgelegtePlaene = [this] {
            return abgelegte;
        };
        return alle;
    }

    /// Presses a key wherever the keyboard is.
    static void taste(Qt::Key taste, Qt::KeyboardModifiers dazu = {})
    {
        QTest::keyClick(QApplication::focusWidget(), taste, dazu);
    }
    /// Types letters, of any keyboard, wherever the keyboard is.
    static void tippe(const QString &text)
    {
        for (const QChar &zeichen : text) {
            QKeyEvent ereignis(QEvent::KeyPress, 0, Qt::NoModifier, zeichen);
            QApplication::sendEvent(QApplication::focusWidget(), &ereignis);
        }
    }
    /// A food and its amount, as they are typed one after the other.
    static void gibEin(const QString &name, const QString &angabe)
    {
        tippe(name);
        taste(Qt::Key_Return);
        tippe(angabe);
        taste(Qt::Key_Return);
    }

    void neu() { QTest::keyClick(fenster.get(), Qt::Key_N, Qt::ControlModifier); }

    Aufzeichnung jetzige() const { return fenster->buch.jetzige().value_or(Aufzeichnung()); }
    Mahlzeitzeile zeile(int mahlzeit, int zeile, int tag = 0) const
    {
        return jetzige().tage.value(tag).mahlzeiten.value(mahlzeit).zeilen.value(zeile);
    }
    /// What stands in a cell of the table.
    QString zelle(const Platz &platz, int spalte) const
    {
        const Tagesmodell &modell = fenster->ansicht->tagesmodell();
        return modell.index(modell.reihe(platz), spalte).data().toString();
    }
    QStringList hinweise() const
    {
        QStringList texte;
        for (const Hinweis &einer : fenster->hinweise->hinweise()) {
            texte << einer.text;
        }
        return texte;
    }

    Probeablage ablage;
    Lebensmittelverzeichnis speisen;
    QStringList namen;
    QHash<QString, QList<Mass>> masse;
    Energiebedarf bedarf;
    QStringList gefragt;
    int antwort = 0;
    QList<Planmenge> plan;   ///< on the desk
    QList<Planmenge> gelegt; ///< what came to the desk last
    bool legtAufTisch = true;
    QList<Vorratsplan> abgelegte;
    bool aktiv = false; ///< the keyboard is in the window
    std::unique_ptr<Tagefenster> fenster;
};
