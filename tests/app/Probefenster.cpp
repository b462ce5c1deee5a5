#include "Probefenster.h"

#include "Archivdatei.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QTest>
#include <QTimer>
#include <QWindow>

Probeheim::Probeheim()
    : m_einstellungen(std::make_unique<Einstellungen>(einstellungsdatei(), QSettings::IniFormat))
{
    // Most tests carry no pictures; those of the toolbar look whether they are there.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.svg.warning=false"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    AppController::angeklickteSpalte = -1;
}

QString Probeheim::eigeneDatei() const
{
    return Datenordner(m_ordner.path()).pathForDataFile(QStringLiteral("customdaten"));
}

QString Probeheim::einstellungsdatei() const
{
    return m_ordner.filePath(QStringLiteral("probe%1.ini").arg(m_starts));
}

/// Settings on one file share their memory within a program, so every start has a copy of the file.
void Probeheim::liesEinstellungenNeu()
{
    m_einstellungen.reset();
    const QString bisher = einstellungsdatei();
    ++m_starts;
    QFile::copy(bisher, einstellungsdatei());
    m_einstellungen = std::make_unique<Einstellungen>(einstellungsdatei(), QSettings::IniFormat);
}

void Probeheim::schreibeTabelle(const Lebensmittelverzeichnis &lebensmittel) const
{
    QVERIFY(Archivdatei::schreiben(tabelle(), lebensmittel));
    // The shipped table is everybody's.
    QVERIFY(QFile::setPermissions(tabelle(), QFile::ReadOwner | QFile::WriteOwner |
                                                 QFile::ReadGroup | QFile::ReadOther));
}

void Probeheim::schreibeEigene(const Lebensmittelverzeichnis &lebensmittel) const
{
    QVERIFY(Archivdatei::schreiben(eigeneDatei(), lebensmittel));
}

QVariant Probeheim::aufDerPlatte(const QString &schluessel) const
{
    const QTemporaryDir woanders;
    const QString kopie = woanders.filePath(QStringLiteral("kopie.ini"));
    QFile::copy(einstellungsdatei(), kopie);
    return QSettings(kopie, QSettings::IniFormat).value(schluessel);
}

Tueren Probeheim::tueren()
{
    Tueren tueren;
    tueren.eingebauteTabelle = tabelle();
    tueren.datenordner = Datenordner(m_ordner.path());
    tueren.einstellungen = m_einstellungen.get();
    tueren.melde = [this](QWidget *, const Meldung &meldung) {
        meldungen << meldung;
        beiMeldung();
        return antworten.isEmpty() ? 0 : antworten.takeFirst();
    };
    tueren.wertungstabelle = wertungstabelle;
    tueren.drucke = drucke;
    tueren.alsPdf = alsPdf;
    tueren.sprich = sprich;
    if (waehleDatei) { // a test may choose another file the next time
        tueren.waehleDatei = [this](QWidget *fenster, const Dateifrage &frage,
                                    const std::function<void(const QString &)> &antwort) {
            waehleDatei(fenster, frage, antwort);
        };
    }
    tueren.protokolliere = [this](const QString &zeile) {
        protokoll << zeile;
        beimProtokoll();
    };
    return tueren;
}

Probefenster::Probefenster(Probeheim &heim)
    : m_oberflaeche(std::make_unique<Oberflaeche>(heim.tueren()))
    , m_controller(&m_oberflaeche->hauptfenster)
{
    m_oberflaeche->awakeFromNib();
    m_controller->Hauptfenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_controller->Hauptfenster));
}

QPoint Probefenster::mitte(int zeile, int spalte) const
{
    const Tabellenansicht &tabelle = *m_controller->Tabelle;
    return tabelle.visualRect(tabelle.model()->index(zeile, spalte)).center();
}

void Probefenster::klicke(int zeile, int spalte) const
{
    m_controller->Tabelle->scrollRowToVisible(zeile);
    QTest::mouseClick(m_controller->Tabelle->viewport(), Qt::LeftButton, {}, mitte(zeile, spalte));
}

void Probefenster::klickeDaneben() const
{
    const QWidget *flaeche = m_controller->Tabelle->viewport();
    QTest::mouseClick(m_controller->Tabelle->viewport(), Qt::LeftButton, {},
                      QPoint(20, flaeche->height() - 4));
}

void Probefenster::drueckeWerkzeug(const QString &kennung) const
{
    const Werkzeugleiste &leiste = *m_controller->toolbar;
    const auto stelle = static_cast<int>(leiste.kennungen().indexOf(kennung));
    QTest::mouseClick(leiste.werkzeugfeld(stelle), Qt::LeftButton);
}

void Probefenster::suche(const QString &text) const
{
    QLineEdit *feld = (*this)->suchfeld;
    feld->setFocus();
    feld->selectAll();
    QTest::keyClicks(feld, text);
    QTest::keyClick(feld, Qt::Key_Return);
}

void Probefenster::tippeMenge(const Schieber &schieber, const QString &gramm)
{
    QDoubleSpinBox *eingabe = schieber.eingabe();
    QCoreApplication::processEvents();
    eingabe->setFocus();
    eingabe->selectAll();
    QTest::keyClicks(eingabe, gramm);
    QTest::keyClick(eingabe, Qt::Key_Return);
}

QString Probefenster::text(const QLineEdit &feld)
{
    QCoreApplication::processEvents();
    return feld.text().replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

Zellenbild Probefenster::zelle(int zeile, int spalte) const
{
    const Tabellenmodell &modell = *m_controller->Tabelle->modell();
    return modell.bild(modell.index(zeile, spalte));
}

QString Probefenster::ansicht() const
{
    return m_controller->DatenAnsicht->currentWidget()->property("kennung").toString();
}

QStringList Probefenster::gezeigteWerte() const
{
    QStringList texte;
    for (const Textfeld *feld : m_controller->wertfelder()) {
        texte << (feld->isHidden() ? QString() : text(*feld));
    }
    return texte;
}

Datenmodul lebensmittel(const QString &name, const Wertliste &werte, const QStringList &urteile)
{
    Datenmodul neu;
    neu.setName(name);
    for (const auto &[wert, zahl] : werte) {
        neu.setWert(wert, zahl);
    }
    for (int i = 0; i < urteile.size(); ++i) {
        neu.setWertung(static_cast<Wertung>(i), urteile[i]);
    }
    return neu;
}

Lebensmittelverzeichnis verzeichnis(const QList<Datenmodul> &lebensmittel)
{
    Lebensmittelverzeichnis alle;
    for (const Datenmodul &eines : lebensmittel) {
        alle.insert(eines.name(), eines);
    }
    return alle;
}

QStringList inhalt(const Datenmodul &lebensmittel)
{
    QStringList felder = {lebensmittel.name()};
    for (const auto &zeile : naehrwerte) {
        felder << QString::number(static_cast<double>(lebensmittel.wert(zeile.wert)), 'g', 9);
    }
    for (const auto &zeile : wertungen) {
        felder << lebensmittel.wertung(zeile.wertung);
    }
    return felder;
}

QList<QStringList> inhalt(const Lebensmittelverzeichnis &lebensmittel)
{
    QList<QStringList> alle;
    for (auto eines = lebensmittel.begin(); eines != lebensmittel.end(); ++eines) {
        alle << QStringList{eines.key()} + inhalt(*eines);
    }
    return alle;
}

QString zaehlname(int zeile)
{
    return QStringLiteral("Speise %1").arg(zeile, 4, 10, QLatin1Char('0'));
}

Lebensmittelverzeichnis zaehltabelle(int zeilen)
{
    Lebensmittelverzeichnis alle;
    for (int zeile = 0; zeile < zeilen; ++zeile) {
        alle.insert(zaehlname(zeile),
                    lebensmittel(zaehlname(zeile), {{Naehrwert::kal, static_cast<float>(zeile + 1)},
                                                    {Naehrwert::protein, 10.0F}}));
    }
    return alle;
}

Probeuebersetzer::Probeuebersetzer(QHash<QString, QString> worte) : m_worte(std::move(worte))
{
    QCoreApplication::installTranslator(this);
}

Probeuebersetzer::~Probeuebersetzer()
{
    QCoreApplication::removeTranslator(this);
}

QString Probeuebersetzer::translate(const char *context, const char *sourceText, const char *,
                                    int) const
{
    return qstrcmp(context, "Mahlberg") == 0 ? m_worte.value(QString::fromUtf8(sourceText))
                                             : QString();
}

void ziehe(const QWidget &von, const QPoint &start, const QWidget &nach, const QPoint &ziel,
           const QPoint &richtung)
{
    QWindow *hier = von.window()->windowHandle();
    QWindow *dort = nach.window()->windowHandle();
    const QPoint anfang = von.mapTo(von.window(), start);
    const QPoint ende = nach.mapTo(nach.window(), ziel);
    QTest::mousePress(hier, Qt::LeftButton, {}, anfang);
    QTest::mouseMove(hier, anfang + richtung);
    // A drag has an event loop of its own, which the move after this one enters: what is due then
    // runs within it.
    bool losgelassen = false;
    QObject faden;
    QTimer::singleShot(0, &faden, [&] {
        QTest::mouseMove(dort, ende - QPoint(1, 0));
        QTest::mouseMove(dort, ende);
        QTest::mouseRelease(dort, Qt::LeftButton, {}, ende);
        losgelassen = true;
    });
    QTest::mouseMove(hier, anfang + richtung * (QApplication::startDragDistance() + 1));
    QTRY_VERIFY(losgelassen);
}

void mitEchtemZiehen()
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
}
