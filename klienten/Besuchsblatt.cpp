#include "Besuchsblatt.h"

#include "Angabenworte.h"
#include "Feldworte.h"
#include "Sperrgrund.h"
#include "Sportarten.h"
#include "Sportworte.h"
#include "Tabellenkopie.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>

namespace {

constexpr int zeilenhoehe = 26;

/// The field that each doubt is about, in the order of Zweifel::Art.
constexpr std::array<const char *, 8> zweifelsfelder = {"gewicht", "groesse", "taille", "huefte",
                                                        "gewicht", "groesse", "datum",  "datum"};

QWidget &eingerichtet(Besuchsblatt &blatt)
{
    blatt.setupUi(&blatt);
    return *blatt.formular;
}

/// The sports in the language on screen, and what is kept of each.
std::pair<QStringList, QVariantList> sportangebot()
{
    QStringList worte = {sportworte(QString())};
    QVariantList werte = {QStringLiteral("")};
    for (const Sportart &eine : sportarten) {
        if (!eine.deutsch.isEmpty()) {
            const QString kennung = eine.deutsch.toString();
            worte << sportworte(kennung);
            werte << kennung;
        }
    }
    return {worte, werte};
}

QString zweifelsfeld(const Zweifel &einer)
{
    return QLatin1String(zweifelsfelder.at(static_cast<std::size_t>(einer.art)));
}

QTableWidgetItem *zelle(const QString &spalte, const QString &text)
{
    auto *neu = new QTableWidgetItem(text);
    const bool zahl = !feldeinheit(spalte.toLatin1().constData()).isEmpty();
    neu->setTextAlignment((zahl ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return neu;
}

} // namespace

Besuchsblatt::Besuchsblatt(Kartei &kartei, Meldungstuer melde)
    : BesuchsblattGestalt()
    , m_kartei(kartei)
    , m_melde(std::move(melde))
    , m_formular(eingerichtet(*this))
{
    bieteAn();
    besuche->setColumnCount(static_cast<int>(spalten<Besuch>().size()));
    besuche->verticalHeader()->hide();
    besuche->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*besuche, zeilenhoehe));
    besuche->horizontalHeader()->setHighlightSections(false);
    Tabellenkopie::ermoegliche(*besuche);
    new Sperrgrund(besuchLoeschen,
                   localizedString(QStringLiteral("Wählen Sie zuerst einen Besuch.")));
    connect(&m_formular, &Satzformular::eingegeben, this, &Besuchsblatt::sichere);
    connect(besuche, &QTableWidget::currentCellChanged, this, [this](int zeile) { waehle(zeile); });
    connect(neuerBesuch, &QPushButton::clicked, this, &Besuchsblatt::beginneBesuch);
    connect(besuchLoeschen, &QPushButton::clicked, this, &Besuchsblatt::loesche);
    connect(groessenwahl, &QComboBox::activated, this, &Besuchsblatt::zeigeVerlauf);
}

void Besuchsblatt::bieteAn()
{
    m_formular.bieteAn(QStringLiteral("aktivitaet"), aktivitaetsworte(), {0, 1, 2}, true);
    m_formular.bieteAn(
        QStringLiteral("reduktion"),
        {localizedString(QStringLiteral("nein")), localizedString(QStringLiteral("ja"))}, {0, 1},
        true);
    const auto [worte, werte] = sportangebot();
    m_formular.bieteAn(QStringLiteral("sport"), worte, werte, true);
    const int gewaehlte = std::max(0, groessenwahl->currentIndex());
    groessenwahl->clear();
    for (const Messgroesse was : {Messgroesse::Gewicht, Messgroesse::Bmi, Messgroesse::Taille}) {
        groessenwahl->addItem(localizedString(QString::fromUtf8(messart(was).name)),
                              static_cast<int>(was));
    }
    groessenwahl->setCurrentIndex(gewaehlte);
    QStringList koepfe;
    for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
        koepfe << localizedString(QString::fromUtf8(spalte.beschriftung));
    }
    besuche->setColumnCount(static_cast<int>(koepfe.size()));
    besuche->setHorizontalHeaderLabels(koepfe);
}

void Besuchsblatt::zeige(const Klientenakte &akte)
{
    const bool anderer = akte.person.kennung != m_akte.person.kennung;
    m_akte = akte;
    const bool nochDa = gewaehlter() != nullptr;
    if (anderer || !nochDa) {
        m_gewaehlt = akte.besuche.isEmpty() ? QString() : akte.besuche.constLast().kennung;
    }
    fuelle();
    zeigeGewaehlten();
    zeigeVerlauf();
}

const Besuch *Besuchsblatt::gewaehlter() const
{
    const auto stelle =
        std::find_if(m_akte.besuche.begin(), m_akte.besuche.end(),
                     [this](const Besuch &besuch) { return besuch.kennung == m_gewaehlt; });
    return stelle != m_akte.besuche.end() ? &*stelle : nullptr;
}

/// The latest visit stands first: it is the one that is worked with.
void Besuchsblatt::fuelle()
{
    const QScopedValueRollback fuellt(m_fuellt, true);
    const auto anzahl = static_cast<int>(m_akte.besuche.size());
    besuche->setRowCount(anzahl);
    for (int zeile = 0; zeile < anzahl; ++zeile) {
        const Besuch &besuch = m_akte.besuche[anzahl - 1 - zeile];
        int stelle = 0;
        for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
            besuche->setItem(zeile, stelle++,
                             zelle(QLatin1String(spalte.name), feldworte(besuch, spalte)));
        }
        if (besuch.kennung == m_gewaehlt) {
            besuche->setCurrentCell(zeile, std::max(0, besuche->currentColumn()));
        }
    }
    besuche->horizontalHeader()->setStretchLastSection(false);
    besuche->resizeColumnsToContents();
    besuche->horizontalHeader()->setStretchLastSection(true);
}

void Besuchsblatt::waehle(int zeile)
{
    const qsizetype stelle = m_akte.besuche.size() - 1 - zeile;
    if (m_fuellt || stelle < 0 || stelle >= m_akte.besuche.size()) {
        return;
    }
    const QString gewuenscht = m_akte.besuche[stelle].kennung;
    if (gewuenscht == m_gewaehlt) {
        return;
    }
    m_formular.schliesseAb();
    m_gewaehlt = gewuenscht;
    zeigeGewaehlten();
}

void Besuchsblatt::zeigeGewaehlten()
{
    const Besuch *besuch = gewaehlter();
    formular->setEnabled(m_aendern && besuch != nullptr);
    besuchLoeschen->setEnabled(m_aendern && besuch != nullptr);
    m_formular.zeige(besuch != nullptr ? *besuch : Besuch());
}

void Besuchsblatt::zeigeVerlauf()
{
    verlauf->setze(m_akte.person, m_akte.besuche,
                   static_cast<Messgroesse>(groessenwahl->currentData().toInt()),
                   QDate::currentDate());
}

/// Asks about what is unlikely, once for each figure.
bool Besuchsblatt::bestaetigt(const Besuch &besuch)
{
    QList<Zweifel> offene =
        zweifel(besuch, m_akte.besuche, m_akte.person.geburt, QDate::currentDate());
    const auto zeichen = [&besuch](const Zweifel &einer) {
        return besuch.kennung + inWorten(einer);
    };
    offene.removeIf([&](const Zweifel &einer) { return m_gefragt.contains(zeichen(einer)); });
    if (offene.isEmpty()) {
        return true;
    }
    QStringList saetze;
    for (const Zweifel &einer : std::as_const(offene)) {
        saetze << inWorten(einer);
    }
    const bool gemeint =
        m_melde(window(), {.text = localizedString(QStringLiteral("Stimmt das so?")),
                           .erklaerung = saetze.join(u'\n'),
                           .knoepfe = {localizedString(QStringLiteral("Ändern")),
                                       localizedString(QStringLiteral("Es stimmt"))}}) == 1;
    for (const Zweifel &einer : std::as_const(offene)) {
        if (gemeint) {
            m_gefragt.insert(zeichen(einer));
        } else {
            m_formular.sageFehler(zweifelsfeld(einer), inWorten(einer));
        }
    }
    if (!gemeint) {
        m_formular.gehZu(zweifelsfeld(offene.constFirst()));
    }
    return gemeint;
}

bool Besuchsblatt::sichere()
{
    if (gewaehlter() == nullptr || m_fragt) {
        return true;
    }
    const Besuch bisher = *gewaehlter();
    Besuch neu = bisher;
    bool gut = m_formular.lies(neu, QDate::currentDate());
    if (!neu.datum.isValid()) {
        neu.datum = bisher.datum;
        m_formular.sageFehler(QStringLiteral("datum"),
                              localizedString(QStringLiteral("Ein Besuch hat einen Tag.")));
        gut = false;
    }
    if (neu == bisher) {
        return gut;
    }
    const QScopedValueRollback fragt(m_fragt, true);
    if (!bestaetigt(neu)) {
        return false;
    }
    m_kartei.sichere({m_akte.person.kennung, neu, Satz(bisher)});
    return gut;
}

void Besuchsblatt::beginneBesuch()
{
    if (!sichere()) {
        Q_EMIT festgehalten();
        return;
    }
    const QDate heute = QDate::currentDate();
    const auto heutiger = std::find_if(m_akte.besuche.begin(), m_akte.besuche.end(),
                                       [&](const Besuch &besuch) { return besuch.datum == heute; });
    if (heutiger != m_akte.besuche.end()) {
        m_gewaehlt = heutiger->kennung;
    } else {
        Besuch neu;
        neu.kennung = neueKennung();
        neu.datum = heute;
        m_gewaehlt = neu.kennung;
        m_kartei.sichere({m_akte.person.kennung, neu, {}});
    }
    fuelle();
    zeigeGewaehlten();
    gewicht->setFocus();
    gewicht->selectAll();
}

void Besuchsblatt::loesche()
{
    const Besuch *besuch = gewaehlter();
    if (besuch != nullptr && m_kartei.loesche(m_akte.person.kennung, *besuch)) {
        Q_EMIT geloescht();
    }
}

void Besuchsblatt::folgeSprache()
{
    bieteAn();
    fuelle();
    zeigeGewaehlten();
    zeigeVerlauf();
}

void Besuchsblatt::erlaube(bool aendern)
{
    m_aendern = aendern;
    neuerBesuch->setEnabled(aendern);
    zeigeGewaehlten();
}
