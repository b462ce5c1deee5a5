#include "Planblatt.h"

#include "Feldworte.h"
#include "Sperrgrund.h"
#include "Tabellenkopie.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int zeilenhoehe = 26;

enum Spalte { spalteName, spalteGramm, spalteSeitdem, anzahlSpalten };

QWidget &eingerichtet(Planblatt &blatt)
{
    blatt.setupUi(&blatt);
    return *blatt.planinhalt;
}

QTableWidgetItem *zelle(const QString &text, Qt::Alignment seite = Qt::AlignLeft)
{
    auto *neu = new QTableWidgetItem(text);
    neu->setTextAlignment(seite | Qt::AlignVCenter);
    return neu;
}

/// The values and ratings in which a food differs, by their captions.
QStringList unterschiede(const Datenmodul &damals, const Datenmodul &heute)
{
    QStringList namen;
    const auto gleich = [](float a, float b) {
        return a == b || (std::isnan(a) && std::isnan(b));
    };
    for (const auto &zeile : naehrwerte) {
        if (!gleich(damals.wert(zeile.wert), heute.wert(zeile.wert))) {
            namen << localizedString(QString::fromUtf8(zeile.bezeichnung));
        }
    }
    for (const auto &zeile : wertungen) {
        if (damals.wertung(zeile.wertung) != heute.wertung(zeile.wertung)) {
            namen << localizedString(QString::fromUtf8(zeile.bezeichnung));
        }
    }
    return namen;
}

} // namespace

Planblatt::Planblatt(Kartei &kartei, Nachschlagen heute)
    : PlanblattGestalt()
    , m_kartei(kartei)
    , m_heute(std::move(heute))
    , m_formular(eingerichtet(*this))
{
    zeilen->setColumnCount(anzahlSpalten);
    zeilen->verticalHeader()->hide();
    zeilen->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*zeilen, zeilenhoehe));
    zeilen->setWordWrap(false); // or a long name would be cut at a word
    zeilen->horizontalHeader()->setSectionResizeMode(spalteName, QHeaderView::Stretch);
    zeilen->horizontalHeader()->setSectionResizeMode(spalteSeitdem, QHeaderView::Stretch);
    Tabellenkopie::ermoegliche(*zeilen);
    teiler->setStretchFactor(1, 1);
    const QString zuerstWaehlen =
        localizedString(QStringLiteral("Dazu muss der Klient am Schreibtisch sein."));
    new Sperrgrund(ablegen, zuerstWaehlen);
    new Sperrgrund(holen, zuerstWaehlen);
    new Sperrgrund(planLoeschen, localizedString(QStringLiteral("Wählen Sie zuerst einen Plan.")));
    connect(&m_formular, &Satzformular::eingegeben, this, &Planblatt::sichere);
    connect(plaene, &QListWidget::currentRowChanged, this, &Planblatt::waehle);
    connect(ablegen, &QPushButton::clicked, this, &Planblatt::ablegenGewuenscht);
    connect(planLoeschen, &QPushButton::clicked, this, &Planblatt::loesche);
    connect(holen, &QPushButton::clicked, this, [this] {
        if (const Planablage *plan = gewaehlter()) {
            Q_EMIT holenGewuenscht(Planablage(*plan));
        }
    });
    folgeSprache();
}

void Planblatt::zeige(const Klientenakte &akte)
{
    const bool anderer = akte.person.kennung != m_akte.person.kennung;
    const bool neuer = akte.plaene.size() > m_akte.plaene.size();
    m_akte = akte;
    if (anderer || neuer || gewaehlter() == nullptr) {
        m_gewaehlt = akte.plaene.isEmpty() ? QString() : akte.plaene.constLast().kennung;
    }
    fuelle();
    zeigeGewaehlten();
}

const Planablage *Planblatt::gewaehlter() const
{
    const auto stelle =
        std::find_if(m_akte.plaene.begin(), m_akte.plaene.end(),
                     [this](const Planablage &plan) { return plan.kennung == m_gewaehlt; });
    return stelle != m_akte.plaene.end() ? &*stelle : nullptr;
}

/// The latest plan stands first: it is the one that is worked with.
void Planblatt::fuelle()
{
    const QScopedValueRollback fuellt(m_fuellt, true);
    plaene->clear();
    for (auto plan = m_akte.plaene.crbegin(); plan != m_akte.plaene.crend(); ++plan) {
        plaene->addItem(tagesworte(plan->datum) + QStringLiteral("  ") + plan->titel);
        if (plan->kennung == m_gewaehlt) {
            plaene->setCurrentRow(plaene->count() - 1);
        }
    }
}

void Planblatt::waehle(int zeile)
{
    const qsizetype stelle = m_akte.plaene.size() - 1 - zeile;
    if (m_fuellt || stelle < 0 || stelle >= m_akte.plaene.size()) {
        return;
    }
    m_formular.schliesseAb();
    m_gewaehlt = m_akte.plaene[stelle].kennung;
    zeigeGewaehlten();
}

void Planblatt::zeigeGewaehlten()
{
    const Planablage *plan = gewaehlter();
    planinhalt->setEnabled(plan != nullptr);
    for (QWidget *feld : std::initializer_list<QWidget *>{titel, datum, notiz}) {
        feld->setEnabled(m_aendern && plan != nullptr);
    }
    planLoeschen->setEnabled(m_aendern && plan != nullptr);
    holen->setEnabled(m_amTisch && plan != nullptr);
    ablegen->setEnabled(m_aendern && m_amTisch);
    const Planablage gezeigter = plan != nullptr ? *plan : Planablage();
    m_formular.zeige(gezeigter);
    fuelleZeilen(gezeigter.posten);
}

/// What has become of a food since it was kept; empty when it is as it was.
QString Planblatt::seitdem(const Planposten &posten) const
{
    const Datenmodul *heute = m_heute(posten.schluessel);
    if (heute == nullptr) {
        return posten.eintrag ? localizedString(QStringLiteral("nicht mehr in der Tabelle"))
                              : QString();
    }
    if (!posten.eintrag) {
        return localizedString(QStringLiteral("damals in keiner Tabelle"));
    }
    const QStringList anders = unterschiede(*posten.eintrag, *heute);
    return anders.isEmpty() ? QString()
                            : localizedString(QStringLiteral("geändert: %1"))
                                  .arg(anders.join(QStringLiteral(", ")));
}

void Planblatt::fuelleZeilen(const QList<Planposten> &posten)
{
    zeilen->setRowCount(static_cast<int>(posten.size()));
    int geaenderte = 0;
    for (int zeile = 0; zeile < posten.size(); ++zeile) {
        const QString worte = seitdem(posten[zeile]);
        geaenderte += worte.isEmpty() ? 0 : 1;
        const QString name = localizedString(posten[zeile].schluessel);
        zeilen->setItem(zeile, spalteName, zelle(name));
        zeilen->item(zeile, spalteName)->setToolTip(name);
        zeilen->setItem(
            zeile, spalteGramm,
            zelle(wertText(static_cast<double>(posten[zeile].gramm), 0) + QStringLiteral(" g"),
                  Qt::AlignRight));
        zeilen->setItem(zeile, spalteSeitdem, zelle(worte));
        zeilen->item(zeile, spalteSeitdem)->setToolTip(worte);
    }
    zeilen->resizeColumnToContents(spalteGramm);
    planworte->setText(
        gewaehlter() == nullptr ? localizedString(QStringLiteral("Noch kein Plan abgelegt."))
        : geaenderte == 0
            ? QString()
            : localizedString(QStringLiteral("Der Plan steht hier mit den Werten seines Tages. "
                                             "Seitdem anders: %1 von %2 Lebensmitteln."))
                  .arg(geaenderte)
                  .arg(posten.size()));
}

bool Planblatt::sichere()
{
    if (gewaehlter() == nullptr) {
        return true;
    }
    const Planablage bisher = *gewaehlter();
    Planablage neu = bisher;
    bool gut = m_formular.lies(neu, QDate::currentDate());
    if (!neu.datum.isValid()) {
        neu.datum = bisher.datum;
        m_formular.sageFehler(QStringLiteral("datum"),
                              localizedString(QStringLiteral("Ein Plan hat einen Tag.")));
        gut = false;
    }
    if (!(neu == bisher)) {
        m_kartei.sichere({m_akte.person.kennung, neu, Satz(bisher)});
    }
    return gut;
}

void Planblatt::loesche()
{
    const Planablage *plan = gewaehlter();
    if (plan != nullptr && m_kartei.loesche(m_akte.person.kennung, *plan)) {
        Q_EMIT geloescht();
    }
}

void Planblatt::folgeSprache()
{
    zeilen->setHorizontalHeaderLabels({localizedString(QStringLiteral("Lebensmittel")),
                                       localizedString(QStringLiteral("Menge")),
                                       localizedString(QStringLiteral("Seitdem"))});
    fuelle();
    zeigeGewaehlten();
}

void Planblatt::erlaube(bool aendern, bool amTisch)
{
    m_aendern = aendern;
    m_amTisch = amTisch;
    zeigeGewaehlten();
}
