#include "Probefenster.h"

#include <QRandomGenerator>
#include <QTest>

using enum Naehrwert;

/// The search by profile on tables and profiles that chance made.
class TestSucheProfilZufall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomTablesAreSearchedLikeAPlainReference();

private:
    Probeheim m_heim;
};

void TestSucheProfilZufall::randomTablesAreSearchedLikeAPlainReference()
{
    QRandomGenerator zufall(815);
    const char urteile[] = "+0-";
    const auto erfinde = [&zufall, &urteile](const char *vorsatz) {
        QList<Datenmodul> alle;
        for (int i = 0; i < 60; ++i) {
            const QByteArray name = vorsatz + QByteArray::number(1000 + i);
            QStringList wertung;
            for (int k = 0; k < 4; ++k) {
                wertung << QString(QLatin1Char(urteile[zufall.bounded(3)]));
            }
            alle << lebensmittel(QString::fromLatin1(name),
                                 {{protein, static_cast<float>(zufall.bounded(4))},
                                  {kal, static_cast<float>(zufall.bounded(4))}},
                                 wertung);
        }
        return alle;
    };
    const QList<Datenmodul> eingebaute = erfinde("b");
    const QList<Datenmodul> eigene = erfinde("e");
    m_heim.schreibeTabelle(verzeichnis(eingebaute));
    m_heim.schreibeEigene(verzeichnis(eigene));
    const Probefenster fenster(m_heim);
    AppController &controller = fenster.controller();
    Auswahlfeld *const wahl[] = {controller.proteingroesserkleiner,
                                 controller.uebergewichtprofil,
                                 controller.diabetesprofil,
                                 controller.gichtprofil,
                                 controller.hkkprofil,
                                 controller.kaloriengroesserkleiner};
    for (int runde = 0; runde < 60; ++runde) {
        const quint32 schalter = zufall.bounded(64U);
        const QChar zeichen = QStringLiteral("<=>")[zufall.bounded(3)];
        const auto zahl = static_cast<float>(zufall.bounded(4));
        const QString urteil = QString(QLatin1Char(urteile[zufall.bounded(3)]));
        for (int zelle = 0; zelle < 6; ++zelle) {
            controller.suchprofileinaus->zelle(zelle)->setChecked((schalter >> zelle & 1U) != 0);
            wahl[zelle]->setStringValue(zelle == 0 || zelle == 5 ? QString(zeichen) : urteil);
        }
        controller.proteineingabe->setFloatValue(zahl);
        controller.kalorieneingabe->setFloatValue(zahl);
        controller.proteinsuche();

        QStringList treffer;
        for (const Datenmodul &food : eigene + eingebaute) {
            const auto erfuellt = [&](float wert) {
                return zeichen == u'<' ? wert < zahl : zeichen == u'>' ? wert > zahl : wert == zahl;
            };
            const bool ja[] = {erfuellt(food.protein()),  food.uebergewicht() == urteil,
                               food.diabetes() == urteil, food.gicht() == urteil,
                               food.hkk() == urteil,      erfuellt(food.kal())};
            int punkte = 0;
            for (int zelle = 0; zelle < 6; ++zelle) {
                punkte += (schalter >> zelle & 1U) == 0 || ja[zelle] ? 1 : 0;
            }
            if (punkte == 6) {
                treffer << food.name();
            }
        }
        QCOMPARE(controller.suchArray, treffer);
        QCOMPARE(controller.suchArray2, treffer);
    }
}

QTEST_MAIN(TestSucheProfilZufall)
#include "TestSucheProfilZufall.moc"
