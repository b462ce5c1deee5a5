// The foods that were chosen last, for those who go to and fro between a few.

#include "AppController.h"

#include "Einstellungen.h"
#include "Zeichenkettentabelle.h"

#include <QMenu>

#include <algorithm>

namespace {

/// More are not found faster than by searching.
constexpr qsizetype hoechstensGemerkt = 10;

const QString erstesGewaehlt = QStringLiteral("Lebensmittel gewaehlt");

/// The foods of the menu are called up by their place: 1 to 9, then 0.
QString zeilentext(qsizetype stelle, const QString &name)
{
    QString text = kurzerName(name);
    return QStringLiteral("&%1   %2")
        .arg((stelle + 1) % 10)
        .arg(text.replace(QStringLiteral("&"), QStringLiteral("&&")));
}

} // namespace

/// Puts the food on display in front; called where the user chose it. Who has chosen one does not
/// need the guide any more.
void AppController::merkeGewaehltes()
{
    const Gewaehltes neues = {unuebersetztername, !zeigtEingebautes()};
    m_zuletzt.removeOne(neues);
    m_zuletzt.prepend(neues);
    m_zuletzt.resize(std::min(m_zuletzt.size(), hoechstensGemerkt));
    if (!hatGewaehlt()) {
        m_tueren.einstellungen->setValue(erstesGewaehlt, true);
        zeigeLeeres();
    }
}

/// Whether the user has ever chosen a food, in this session or before.
bool AppController::hatGewaehlt() const
{
    return m_tueren.einstellungen->value(erstesGewaehlt, false).toBool();
}

/// Offers the foods that were chosen last below the search box.
void AppController::zeigeZuletzt()
{
    auto *menue = new QMenu(Hauptfenster);
    menue->setObjectName(QStringLiteral("zuletzt"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    for (const Gewaehltes &eines : std::as_const(m_zuletzt)) {
        if (eines.eigen && !KundenArray.contains(eines.name)) {
            continue; // deleted since
        }
        const QString text = zeilentext(menue->actions().size(), localizedString(eines.name));
        connect(menue->addAction(text), &QAction::triggered, this,
                [this, eines] { zeigeWieder(eines.name, eines.eigen); });
    }
    if (menue->isEmpty()) {
        menue->addAction(localizedString(QStringLiteral("Noch kein Lebensmittel gewählt")))
            ->setEnabled(false);
    } else {
        menue->setActiveAction(menue->actions().constFirst());
    }
    menue->popup(suchfeld->mapToGlobal(QPoint(0, suchfeld->height())));
}

/// Shows a food as a click on its cell does.
void AppController::zeigeWieder(const QString &name, bool eigen)
{
    if (eigen) {
        zeigeEigenes(name);
    } else {
        Tabelle->waehle(static_cast<int>(Array.indexOf(name)), QStringLiteral("name"));
    }
}
