#include "Einwandliste.h"

#include "Zeichenkettentabelle.h"

#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int zeilenrolle = Qt::UserRole;

QStyle::StandardPixmap zeichenFuer(Schwere schwere)
{
    return schwere == Schwere::Fehler    ? QStyle::SP_MessageBoxCritical
           : schwere == Schwere::Warnung ? QStyle::SP_MessageBoxWarning
                                         : QStyle::SP_MessageBoxInformation;
}

} // namespace

Einwandliste::Einwandliste(QWidget *parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("einwaende"));
    setAccessibleName(localizedString(QStringLiteral("Was zu dieser Datei zu sagen ist")));
    setWordWrap(true);
    connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem *eintrag) {
        Q_EMIT ausgelassen(eintrag->data(zeilenrolle).toInt(),
                           eintrag->checkState() == Qt::Checked);
    });
}

void Einwandliste::fuegeEin(const QString &text, int zeile, bool weg, bool waehlbar,
                            Schwere schwere)
{
    auto *eintrag = new QListWidgetItem(
        zeile == 0 ? text : localizedString(QStringLiteral("Zeile %1: %2")).arg(zeile).arg(text),
        this);
    eintrag->setIcon(style()->standardIcon(zeichenFuer(schwere)));
    eintrag->setData(zeilenrolle, zeile);
    if (waehlbar) {
        eintrag->setCheckState(weg ? Qt::Checked : Qt::Unchecked);
        eintrag->setToolTip(localizedString(QStringLiteral("Angekreuzt bleibt die Zeile weg.")));
    }
}

/// What forbids to go on comes first. A line with several mistakes has one box, at the first.
void Einwandliste::zeige(const QList<Einwand> &einwaende, const QSet<int> &ausgelassen)
{
    const QSignalBlocker still(this);
    const int gewaehlt = currentRow();
    clear();
    QList<Einwand> geordnet = einwaende;
    std::stable_sort(geordnet.begin(), geordnet.end(),
                     [](const Einwand &a, const Einwand &b) { return a.schwere < b.schwere; });
    QSet<int> schonWaehlbar;
    for (const Einwand &einwand : geordnet.first(qMin(geordnet.size(), hoechstens))) {
        const bool waehlbar = einwand.schwere == Schwere::Fehler && einwand.zeile > 0 &&
                              !schonWaehlbar.contains(einwand.zeile);
        schonWaehlbar.insert(einwand.zeile);
        fuegeEin(einwand.text, einwand.zeile, false, waehlbar, einwand.schwere);
    }
    if (geordnet.size() > hoechstens) {
        fuegeEin(
            localizedString(QStringLiteral("… und %1 weitere")).arg(geordnet.size() - hoechstens),
            0, false, false, Schwere::Hinweis);
    }
    QList<int> weg(ausgelassen.begin(), ausgelassen.end());
    std::sort(weg.begin(), weg.end());
    for (const int zeile : weg.first(qMin(weg.size(), hoechstens))) {
        fuegeEin(localizedString(QStringLiteral("bleibt weg")), zeile, true, true,
                 Schwere::Hinweis);
    }
    setCurrentRow(qMin(gewaehlt, count() - 1));
}
