#include "Probefenster.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

/// How the calculator's two tabs look: the way of the Tab key, room for every text, and words for
/// those who can't see them or don't read German.
class TestRechnerbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theCoursesOfTheTabKey();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void nothingJumps();
    void theWindowFitsASmallScreen();
    void everyControlHasAName();
    void textsAreTranslated();

private:
    void zeige(const QString &ansicht);

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    AnthroController *r = nullptr;
};

void TestRechnerbild::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    zeige(QStringLiteral("vier"));
}

void TestRechnerbild::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestRechnerbild::zeige(const QString &ansicht)
{
    m_fenster->controller().zeigeAnsicht(ansicht);
    QCoreApplication::processEvents();
}

/// What the Tab key walks through, from top to bottom.
void TestRechnerbild::theCoursesOfTheTabKey()
{
    const auto weg = [](QWidget *von, QWidget *bis) {
        QStringList namen;
        for (QWidget *feld = von; feld != nullptr; feld = feld->nextInFocusChain()) {
            if ((feld->focusPolicy() & Qt::TabFocus) != 0 && feld->isVisible() &&
                feld->focusProxy() == nullptr) {
                QWidget *name = feld;
                while (name->objectName().isEmpty() || name->objectName().startsWith(u"qt_")) {
                    name = name->parentWidget();
                }
                if (namen.isEmpty() || namen.last() != name->objectName()) {
                    namen << name->objectName();
                }
            }
            if (feld == bis) {
                break;
            }
        }
        return namen.join(u' ');
    };
    QCOMPARE(weg(r->gewichtn->regler(), r->gewichtredu),
             QStringLiteral("gewichtn groessen taillen hueftn alter mann frau metrikeinaus "
                            "arbeitleicht arbeitmittel arbeitschwer gewichtredu"));
    zeige(QStringLiteral("fünf"));
    r->sport->setStringValue(QStringLiteral("Karate"));
    r->welchersport(*r->sport);
    QCOMPARE(weg(r->alkohol, r->sportmenge->eingabe()),
             QStringLiteral("alkohol zieher sport sportmenge"));
}

void TestRechnerbild::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("ansicht");
    QTest::newRow("body and energy") << QStringLiteral("vier");
    QTest::newRow("alcohol and sport") << QStringLiteral("fünf");
}

void TestRechnerbild::nothingIsCutOff()
{
    QFETCH(QString, ansicht);
    m_fenster->controller().Hauptfenster->resize(1280, 800);
    r->gewichtredu->click();
    zeige(ansicht);
    const QWidget *reiter = m_fenster->controller().DatenAnsicht->currentWidget();
    QVERIFY(reiter->minimumSizeHint().width() <= reiter->width());
    QVERIFY(reiter->minimumSizeHint().height() <= reiter->height());
    for (const QWidget *feld : reiter->findChildren<QWidget *>()) {
        const auto *aufschrift = qobject_cast<const QLabel *>(feld);
        if (!feld->isVisible() || (aufschrift == nullptr && !feld->inherits("QAbstractButton"))) {
            continue;
        }
        QVERIFY2(feld->width() >= feld->minimumSizeHint().width(), qPrintable(feld->objectName()));
        const int hoehe = aufschrift != nullptr && aufschrift->wordWrap()
                              ? aufschrift->heightForWidth(feld->width())
                              : feld->sizeHint().height();
        QVERIFY2(feld->height() >= hoehe, qPrintable(feld->objectName()));
    }
    for (const Textfeld *feld : reiter->findChildren<Textfeld *>()) {
        if (feld->isVisible()) {
            const int breite = feld->fontMetrics().horizontalAdvance(feld->text());
            QVERIFY2(feld->width() >= breite + 6, qPrintable(feld->objectName()));
        }
    }
}

/// A laptop's 1366 x 768, less the bars of the desktop and the window's title.
void TestRechnerbild::theWindowFitsASmallScreen()
{
    QWidget &fenster = *m_fenster->controller().Hauptfenster;
    zeige(QStringLiteral("vier"));
    QVERIFY2(fenster.minimumSizeHint().height() <= 680,
             qPrintable(QString::number(fenster.minimumSizeHint().height())));
    QVERIFY(fenster.minimumSizeHint().width() <= 1280);
    fenster.resize(1280, 680);
    QCoreApplication::processEvents();
    QVERIFY(r->gewichtredu->visibleRegion().isEmpty()); // the last field of the page
    r->arbeit->zelle(0)->setFocus();
    for (int i = 0; i < 4 && !r->gewichtredu->hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(r->gewichtredu->hasFocus());
    QVERIFY(!r->gewichtredu->visibleRegion().isEmpty());
}

/// Longer words beside a face, or other measures, move nothing below them.
void TestRechnerbild::nothingJumps()
{
    const auto ort = [this] {
        QCoreApplication::processEvents();
        return std::pair(r->energiebox->geometry(), r->gewichtn->geometry());
    };
    const auto vorher = ort(); // the crying faces of the first start, imperial
    for (const auto &[schieber, zahl] : std::initializer_list<std::pair<Schieber *, double>>{
             {r->gewichtn, 80}, {r->groessen, 1.8}, {r->taillen, 71}, {r->hueftn, 86}}) {
        schieber->setDoubleValue(zahl);
        Q_EMIT schieber->betaetigt();
    }
    QCOMPARE(r->bmifaceview->entscheidungszahl(), 1);
    QVERIFY(ort() == vorher);
    r->metrik(1);
    r->gewichtreduktion(1);
    QVERIFY(ort() == vorher);
    r->alter->setIntValue(9);
    r->wiealt(*r->alter);
    QVERIFY(r->altersworte->isVisible());
    QVERIFY(ort() == vorher);
    r->alter->setIntValue(25);
    r->wiealt(*r->alter);

    zeige(QStringLiteral("fünf"));
    const auto ortDesSports = [this] {
        QCoreApplication::processEvents();
        return std::pair(r->sportbox->geometry(), r->zieher->geometry());
    };
    const auto ohneWorte = ortDesSports();
    r->zieher->setIntValue(1000);
    r->wievielalkohol(*r->zieher); // 40 g
    QVERIFY(r->alkoholworte->isVisible() && r->mengenworte->isVisible());
    QVERIFY(ortDesSports() == ohneWorte);
}

void TestRechnerbild::everyControlHasAName()
{
    for (const QWidget *seite : {r->koerperseite.data(), r->lebensweiseseite.data()}) {
        for (const QWidget *feld : seite->findChildren<QWidget *>()) {
            if (feld->inherits("Textfeld") || feld->inherits("Schieber") ||
                feld->inherits("Auswahlfeld") || feld->inherits("FaceView") ||
                feld->inherits("Matrix")) {
                QVERIFY2(!feld->accessibleName().isEmpty(), qPrintable(feld->objectName()));
            }
        }
    }
    QCOMPARE(r->sport->itemData(r->sport->findText(QString()), Qt::AccessibleTextRole),
             QVariant(QStringLiteral("kein Sport")));
}

void TestRechnerbild::textsAreTranslated()
{
    const Probeuebersetzer worte(
        {{QStringLiteral("aus"), QStringLiteral("off")},
         {QStringLiteral("Zeit(h)"), QStringLiteral("time(h)")},
         {QStringLiteral("Frau"), QStringLiteral("woman")},
         {QStringLiteral("noch nicht eingestellt: %1"), QStringLiteral("missing: %1")}});
    m_fenster.reset();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    QCOMPARE(r->gewichtredu->text(), QStringLiteral("off"));
    QCOMPARE(r->sportstunden->stringValue(), QStringLiteral("time(h)"));
    QVERIFY(r->bmiworte->text().startsWith(QStringLiteral("missing: ")));
    r->geschlechtAktion(1);
    QCOMPARE(Probefenster::text(*r->geschlecht), QStringLiteral("woman"));
    QCOMPARE(r->geschlecht->stringValue(), QStringLiteral("Frau"));
    QCOMPARE(r->geschlechtname, QStringLiteral("Frau"));
}

QTEST_MAIN(TestRechnerbild)
#include "TestRechnerbild.moc"
