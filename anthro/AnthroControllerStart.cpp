// How the calculator begins: its choosers, its start values and what the settings hold.

#include "AnthroController.h"

#include "Energiebedarf.h"
#include "Ganzzahl.h"
#include "Getraenke.h"
#include "Sperrgrund.h"
#include "Sportarten.h"
#include "Zeichenkettentabelle.h"

#include <QAbstractButton>
#include <QCollator>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSettings>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr float startgewicht = 80.0F;   // kg
constexpr float startgroesse = 1.8F;    // m
constexpr float starthuefte = 86.0F;    // cm
constexpr float starttaille = 71.0F;    // cm
constexpr float startgeschlecht = 1.2F; // a man
constexpr float startarbeit = 1.1F;     // light work

const QString startgetraenk = QStringLiteral("Kölsch");

/// What stands beside each face, in the order of the faces' codes.
constexpr std::array<const char *, 3> urteile = {
    QT_TRANSLATE_NOOP("Mahlberg", "im günstigen Bereich"),
    QT_TRANSLATE_NOOP("Mahlberg", "außerhalb des günstigen Bereichs"),
    QT_TRANSLATE_NOOP("Mahlberg", "weit außerhalb des günstigen Bereichs"),
};

/// The names of a table in the language on screen, in its alphabetical order.
template <typename Tabelle>
QStringList namen(const Tabelle &tabelle)
{
    const bool englisch = QLocale().language() == QLocale::English;
    QStringList ergebnis;
    for (const auto &zeile : tabelle) {
        const bool uebersetzt = englisch && !zeile.englisch.isNull();
        ergebnis << (uebersetzt ? zeile.englisch : zeile.deutsch).toString();
    }
    std::sort(ergebnis.begin(), ergebnis.end(), QCollator(QLocale()));
    return ergebnis;
}

/// What a table calls the bearer of this name, in either language, in the language on screen; the
/// name itself where it is in no table.
template <typename Tabelle>
QString nameInSprache(const Tabelle &tabelle, const QString &name)
{
    const bool englisch = QLocale().language() == QLocale::English;
    for (const auto &zeile : tabelle) {
        if (!zeile.englisch.isNull() && (name == zeile.deutsch || name == zeile.englisch)) {
            return (englisch ? zeile.englisch : zeile.deutsch).toString();
        }
    }
    return name;
}

/// The names of a table in both languages.
template <typename Tabelle>
QStringList alleNamen(const Tabelle &tabelle)
{
    QStringList ergebnis;
    for (const auto &zeile : tabelle) {
        ergebnis << zeile.deutsch.toString();
        if (!zeile.englisch.isNull()) {
            ergebnis << zeile.englisch.toString();
        }
    }
    return ergebnis;
}

/// The shortest decimal number that reads back as the same single-precision one: other programs
/// find 1.8 in the settings, not 1.7999999523162842.
double kuerzeste(float zahl)
{
    std::array<char, 32> ziffern = {};
    const auto ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl).ptr;
    double ergebnis = 0;
    std::from_chars(ziffern.data(), ende, ergebnis);
    return ergebnis;
}

} // namespace

AnthroController::AnthroController(Anthrotueren tueren)
    : KoerperGestalt()
    , LebensweiseGestalt()
    , koerperseite(new QWidget)
    , lebensweiseseite(new QWidget)
    , m_tueren(std::move(tueren))
{
    KoerperGestalt::setupUi(koerperseite);
    LebensweiseGestalt::setupUi(lebensweiseseite);
    fuelleAuswahlen();
    verbinde();
}

AnthroController::~AnthroController()
{
    delete koerperseite;
    delete lebensweiseseite;
}

void AnthroController::bieteAn()
{
    alkohol->clear();
    alkohol->addItems(namen(getraenke));
    sport->clear();
    sport->addItems(namen(sportarten));
    const QString keiner =
        localizedString(QString::fromUtf8(QT_TRANSLATE_NOOP("Mahlberg", "kein Sport")));
    sport->lineEdit()->setPlaceholderText(keiner);
    sport->setItemData(sport->findText(QString()), keiner, Qt::AccessibleTextRole);
}

void AnthroController::folgeSprache()
{
    const QString getrunken = alkohol->stringValue();
    const QString betrieben = sport->stringValue();
    const QSignalBlocker getraenkStill(alkohol);
    const QSignalBlocker sportStill(sport);
    bieteAn();
    alkohol->setStringValue(nameInSprache(getraenke, getrunken));
    sport->setStringValue(nameInSprache(sportarten, betrieben));
}

void AnthroController::fuelleAuswahlen()
{
    bieteAn();
    alkohol->setWeitereNamen(alleNamen(getraenke));
    alkohol->setStringValue(startgetraenk);
    sport->setWeitereNamen(alleNamen(sportarten));
    sport->setStringValue(QString());
    for (Textfeld *feld : {ml, alkgramm, abbaudauer, resultatsportkal}) {
        feld->setIntValue(0);
    }
    // Metric and imperial fields take each other's place.
    for (QWidget *feld :
         std::initializer_list<QWidget *>{groessedeutscheinaus, gewichtdeutscheinaus, gewicht,
                                          groesse, feeteinaus, lbseinaus, feet, inch, lbs}) {
        QSizePolicy policy = feld->sizePolicy();
        policy.setRetainSizeWhenHidden(false);
        feld->setSizePolicy(policy);
    }
}

void AnthroController::verbinde()
{
    const std::pair<Schieber *, void (AnthroController::*)(const Wertehalter &)> regler[] = {
        {gewichtn, &AnthroController::slidergewicht},
        {groessen, &AnthroController::slidergroesse},
        {hueftn, &AnthroController::sliderhuefte},
        {taillen, &AnthroController::slidertaille},
        {alter, &AnthroController::wiealt},
        {zieher, &AnthroController::wievielalkohol},
        {sportmenge, &AnthroController::wievielsport},
    };
    for (const auto &[schieber, aktion] : regler) {
        connect(schieber, &Schieber::betaetigt, this,
                [this, schieber = schieber, aktion = aktion] { (this->*aktion)(*schieber); });
    }
    verbindeGruppe(*geschlechte, &AnthroController::geschlechtAktion);
    verbindeGruppe(*arbeit, &AnthroController::arbeitAktion);
    connect(metrikeinaus, &QAbstractButton::clicked, this,
            [this](bool ein) { metrik(ein ? 1 : 0); });
    connect(gewichtredu, &QAbstractButton::clicked, this,
            [this](bool ein) { gewichtreduktion(ein ? 1 : 0); });
    connect(alkohol, &Auswahlfeld::betaetigt, this, &AnthroController::welcheralkohol);
    connect(sport, &Auswahlfeld::betaetigt, this, [this] { welchersport(*sport); });
}

void AnthroController::verbindeGruppe(const Matrix &gruppe, void (AnthroController::*aktion)(int))
{
    for (const QAbstractButton *zelle : gruppe.zellen()) {
        connect(zelle, &QAbstractButton::clicked, this,
                [this, &gruppe, aktion] { (this->*aktion)(gruppe.gewaehlterTag()); });
    }
}

void AnthroController::awakeFromNib()
{
    ladeBilder();
    setzeStartwerte();
    liesEinstellungen();
}

void AnthroController::ladeBilder()
{
    bilda = QImage(QStringLiteral(":/bilder/smile.png"));
    bildb = QImage(QStringLiteral(":/bilder/nocrie-nosmile.png"));
    bildc = QImage(QStringLiteral(":/bilder/crie.png"));
    for (FaceView *gesicht : {kalfaceview, bmifaceview, whfaceview}) {
        gesicht->setImage(bilda);
        gesicht->setImage2(bildb);
        gesicht->setImage3(bildc);
    }
}

/// The plan gets the start value alone; the rest follows with the stored settings.
void AnthroController::setzeStartwerte()
{
    gewicht->setFloatValue(startgewicht);
    gewichtbmi->setFloatValue(startgewicht);
    groesse->setFloatValue(startgroesse);
    zeigeBmi();
    zeigeUrteil(*bmifaceview, *bmiworte, Gesichtscode::lachend);
    hueftumfang->setFloatValue(starthuefte);
    taillenumfang->setFloatValue(starttaille);
    zeigeVerhaeltnis();
    zeigeUrteil(*whfaceview, *whworte, Gesichtscode::lachend);

    geschlechtauswahl = startgeschlecht;
    arbeitauswahl = startarbeit;
    kal = ganzzahl(static_cast<double>(
        energiegrundbedarf(gewichtbmi->floatValue(), arbeitauswahl, geschlechtauswahl)));
    resultatkal->setIntValue(kal);
    zeigeUrteil(*kalfaceview, *kalworte, Gesichtscode::lachend);
    if (plan == nullptr) {
        m_eigenerPlan = m_tueren.neuerPlan();
        plan = m_eigenerPlan.get();
    }
    plan->anthrouebergabe(kal);

    ml->setTextColor(Textfarbe::Schwarz);
    name = startgetraenk;
    gewicht2->setFloatValue(gewicht->floatValue());
    zeigeGeschlecht();
    sportmenge->setEnabled(false);
    begruendeSperren();
    sportstunden->setStringValue(localizedString(QStringLiteral("Zeit(h)")));
    alteranzeige->setIntValue(startalter);
    alter->setIntValue(startalter);
}

void AnthroController::begruendeSperren()
{
    const QString grund = localizedString(QStringLiteral("Wählen Sie zuerst eine Sportart."));
    new Sperrgrund(sportmenge->regler(), grund);
    new Sperrgrund(sportmenge->eingabe(), grund);
    const QString kindesalter =
        localizedString(QStringLiteral("Hier wird erst ab 11 Jahren gerechnet."));
    for (QWidget *feld : altersfelder()) {
        const QWidgetList teile = feld->findChildren<QWidget *>() << feld;
        for (QWidget *teil : teile) {
            if (teil->focusPolicy() != Qt::NoFocus) {
                new Sperrgrund(teil, kindesalter);
            }
        }
    }
}

void AnthroController::liesEinstellungen()
{
    for (Wertehalter *feld : std::initializer_list<Wertehalter *>{groesse, groessen}) {
        feld->setFloatValue(gemerkt("Groesse"));
    }
    for (Wertehalter *feld : std::initializer_list<Wertehalter *>{gewicht, gewichtn, gewichtbmi}) {
        feld->setFloatValue(gemerkt("Gewicht"));
    }
    gewichtredu->setChecked(ganzzahl(static_cast<double>(gemerkt("Gewichtredukt"))) != 0);
    metrikeinaus->setChecked(ganzzahl(static_cast<double>(gemerkt("metrik"))) != 0);

    zeigeImperial();
    zeigeMasssystem(metrikeinaus->isChecked());
    rechneEnergie();
    zeigeReduktion();
    uebergibEnergie();
    plan->anthrouebergabegewicht(gewicht->floatValue());
    plan->anthrouebergabegroesse(groesse->floatValue());
    zeigeBmi();
    rateBmi();
    rateEnergie();
    gewicht2->setFloatValue(gewicht->floatValue());

    for (Wertehalter *feld : std::initializer_list<Wertehalter *>{hueftumfang, hueftn}) {
        feld->setFloatValue(gemerkt("Huefte"));
    }
    for (Wertehalter *feld : std::initializer_list<Wertehalter *>{taillenumfang, taillen}) {
        feld->setFloatValue(gemerkt("Taille"));
    }
    zeigeVerhaeltnis();
    rateVerhaeltnis();
}

/// What is no number, or none that can be measured, counts as never stored.
float AnthroController::gemerkt(const char *schluessel) const
{
    const float zahl = m_tueren.einstellungen->value(QLatin1String(schluessel)).toFloat();
    return std::isfinite(zahl) ? zahl : 0.0F;
}

void AnthroController::merke(const char *schluessel, float zahl)
{
    m_tueren.einstellungen->setValue(QLatin1String(schluessel), kuerzeste(zahl));
}

/// The captions of the measures that nobody has set yet, as words to stand beside a face.
QString AnthroController::fehlende(std::initializer_list<Mass> masse)
{
    QStringList worte;
    for (const auto &[beschriftung, feld] : masse) {
        if (feld.floatValue() == 0.0F) {
            worte << beschriftung->text().remove(QLatin1Char('&'));
        }
    }
    return worte.isEmpty() ? QString()
                           : localizedString(QStringLiteral("noch nicht eingestellt: %1"))
                                 .arg(worte.join(QStringLiteral(", ")));
}

/// Chooses the face and the words beside it. Without a code the face stays as it is. A face that
/// rests on nothing is no verdict: what is missing is said instead.
void AnthroController::zeigeUrteil(FaceView &gesicht, QLabel &worte, std::optional<int> code,
                                   const QString &fehlt)
{
    if (code) {
        gesicht.entscheidung(*code);
    }
    const auto stelle = static_cast<std::size_t>(gesicht.entscheidungszahl() - 1);
    if (!altersworte->isHidden()) {
        worte.setText(localizedString(QStringLiteral("gilt erst ab 11 Jahren")));
    } else if (!fehlt.isEmpty()) {
        worte.setText(fehlt);
    } else if (stelle < urteile.size()) {
        worte.setText(localizedString(QString::fromUtf8(urteile.at(stelle))));
    }
}
