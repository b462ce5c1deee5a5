#include "Befehlsprobe.h"

#include "Archivdatei.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

Datenmodul speise(const QString &name, const Werte &werte, const QStringList &urteile)
{
    Datenmodul neu;
    neu.setName(name);
    for (const auto &[wert, zahl] : werte) {
        neu.setWert(wert, zahl);
    }
    for (qsizetype i = 0; i < urteile.size(); ++i) {
        neu.setWertung(static_cast<Wertung>(i), urteile[i]);
    }
    return neu;
}

QJsonObject objekt(const Antwort &antwort)
{
    return QJsonDocument::fromJson(antwort.ausgabe).object();
}

void Befehlsprobe::richteEin()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
    QVERIFY(QDir().mkpath(pfad(u"Eigenes"_s)));
    schreibe(u"Tabelle.daten"_s, {speise(u"Äpfel, roh"_s, {{Naehrwert::kal, 52}}),
                                  speise(u"Apfelmus"_s, {{Naehrwert::kal, 62}}),
                                  speise(u"Brei"_s, {{Naehrwert::kal, 80}}),
                                  speise(u"Brot"_s, {{Naehrwert::kal, 250}})});
}

void Befehlsprobe::schreibe(const QString &name, const QList<Datenmodul> &lebensmittel) const
{
    Lebensmittelverzeichnis alle;
    for (const Datenmodul &eines : lebensmittel) {
        alle.insert(eines.name(), eines);
    }
    QVERIFY(Archivdatei::schreiben(pfad(name), alle));
}

void Befehlsprobe::schreibePlan(const QList<std::pair<QString, float>> &zeilen) const
{
    QList<Datenmodul> traeger;
    for (const auto &[name, gramm] : zeilen) {
        traeger << speise(name, {{Naehrwert::kal, gramm}});
    }
    schreibe(u"Plan.daten"_s, traeger);
}

void Befehlsprobe::schreibeRoh(const QString &name, const QByteArray &bytes) const
{
    QFile datei(pfad(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

Antwort Befehlsprobe::frage(Aufruf aufruf) const
{
    if (aufruf.auftrag.datenordner.isNull()) {
        aufruf.auftrag.datenordner = pfad(u"Eigenes"_s);
    }
    return antworte(aufruf, {.eingebauteTabelle = pfad(u"Tabelle.daten"_s),
                             .englischeNamen = {},
                             .namenswechsel = pfad(u"Umbenannt.csv"_s)});
}

Antwort Befehlsprobe::schlageNach(const QString &name, float gramm, bool eigenes,
                                  Ausgabeform form) const
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Nachschlagen;
    aufruf.auftrag.name = name;
    aufruf.auftrag.gramm = gramm;
    aufruf.auftrag.eigenes = eigenes;
    aufruf.auftrag.form = form;
    return frage(aufruf);
}

Antwort Befehlsprobe::werteAus(Ausgabeform form, std::int32_t energie, const QString &datei) const
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Auswerten;
    aufruf.auftrag.name = pfad(datei);
    aufruf.auftrag.form = form;
    aufruf.auftrag.energiebedarf = energie;
    return frage(aufruf);
}
