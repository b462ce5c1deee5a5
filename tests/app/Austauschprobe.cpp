#include "Austauschprobe.h"

#include "Ausgabefenster.h"
#include "Bestandsvergleich.h"
#include "Einlesefenster.h"

#include <QComboBox>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Naehrwert;

Austauschprobe::Austauschprobe()
{
    heim.waehleDatei = [](QWidget *, const Dateifrage &, const auto &) {
    };
    heim.schreibeTabelle(verzeichnis({lebensmittel(u"Apfel"_s, {{kal, 52}, {ka, 0.1F}}),
                                      lebensmittel(u"Birne"_s, {{kal, 58}})}));
    heim.schreibeEigene(verzeichnis(
        {lebensmittel(u"Brot"_s, {{kal, 240}}), lebensmittel(u"=Mus"_s, {{kal, 1.0F / 3.0F}})}));
}

QString Austauschprobe::datei(const QByteArray &bytes) const
{
    QString path = heim.pfad(u"speisen.csv"_s);
    QFile datei(path);
    [&] {
        QVERIFY(datei.open(QIODevice::WriteOnly));
    }();
    datei.write(bytes);
    return path;
}

void Austauschprobe::oeffne()
{
    fenster = std::make_unique<Probefenster>(heim);
}

Einlesefenster *Austauschprobe::lies(const QByteArray &bytes)
{
    const QString path = datei(bytes);
    heim.waehleDatei = [path](QWidget *, const Dateifrage &frage, const auto &antwort) {
        QCOMPARE(frage.zweck, Dateifrage::Zweck::Lesen);
        antwort(path);
    };
    if (fenster == nullptr) {
        oeffne();
    }
    menueeintrag(*controller().Hauptfenster, u"Lebensmittel einlesen"_s)->trigger();
    return controller().Hauptfenster->findChild<Einlesefenster *>();
}

void Austauschprobe::gibAus(int liste, const QString &path)
{
    heim.waehleDatei = [path](QWidget *, const Dateifrage &frage, const auto &antwort) {
        QCOMPARE(frage.zweck, Dateifrage::Zweck::Schreiben);
        antwort(path);
    };
    if (fenster == nullptr) {
        oeffne();
    }
    menueeintrag(*controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
    const auto *frage = controller().Hauptfenster->findChild<Ausgabefenster *>();
    QVERIFY(frage != nullptr);
    kind<QComboBox>(*frage, "liste")->setCurrentIndex(liste);
    klicke(kind<QPushButton>(*frage, "sichern"));
}

QString Austauschprobe::hinweis() const
{
    const QList<Hinweis> &alle = controller().hinweise->hinweise();
    return alle.isEmpty() ? QString() : alle.first().text;
}

Lebensmittelverzeichnis Austauschprobe::aufDerPlatte() const
{
    return Archivdatei::lesen(heim.eigeneDatei()).archiv.verzeichnis;
}

QAction *menueeintrag(const QMainWindow &fenster, const QString &anfang)
{
    for (const QAction *menue : fenster.menuBar()->actions()) {
        for (QAction *eintrag : menue->menu()->actions()) {
            if (QString(eintrag->text()).remove(u'&').startsWith(anfang)) {
                return eintrag;
            }
        }
    }
    return nullptr;
}

QPushButton *knopf(const QObject &fenster)
{
    return kind<QPushButton>(fenster, "uebernehmen");
}

void klicke(QAbstractButton *taste)
{
    QTest::mouseClick(taste, Qt::LeftButton);
}
