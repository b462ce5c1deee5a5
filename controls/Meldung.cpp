#include "Meldung.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

/// The warning sign is kept for what may destroy something: on every message, nobody sees it.
QMessageBox::Icon zeichenFuer(const Meldung &meldung)
{
    if (meldung.gefahr) {
        return QMessageBox::Warning;
    }
    const bool frage = meldung.verwerfbar || meldung.knoepfe.size() > 1;
    return frage ? QMessageBox::Question : QMessageBox::Information;
}

/// Makes room for a text in one line, or for lines that the eye still follows. A message box by
/// itself is as wide as its heading and breaks the explanation. With large letters on a small
/// screen, the buttons would lie beyond its edge: there the lines are shorter.
void gibBreite(QMessageBox &kasten, const QString &name, bool fett)
{
    auto *feld = kasten.findChild<QLabel *>(name);
    if (feld == nullptr) {
        return;
    }
    QFont schrift = feld->font();
    schrift.setBold(fett);
    feld->setFont(schrift);
    constexpr int laengsteZeile = 100; // in characters
    constexpr int daneben = 120;       // points for the sign, the margins and the window's frame
    const QFontMetrics mass(schrift);
    const QMargins rand = feld->contentsMargins();
    const int text = mass.size(Qt::TextExpandTabs, feld->text()).width() + mass.averageCharWidth();
    const int breite =
        rand.left() + rand.right() + std::min(text, laengsteZeile * mass.averageCharWidth());
    feld->setMinimumWidth(std::min(breite, kasten.screen()->availableGeometry().width() - daneben));
}

} // namespace

int zeigeMeldung(QWidget *fenster, const Meldung &meldung)
{
    QMessageBox kasten(fenster);
    kasten.setIcon(zeichenFuer(meldung));
    // A message without a heading says its explanation where the heading would stand.
    kasten.setText(meldung.text.isEmpty() ? meldung.erklaerung : meldung.text);
    QStringList darunter = {meldung.text.isEmpty() ? QString() : meldung.erklaerung,
                            meldung.gegenstand};
    darunter.removeAll(QString());
    kasten.setInformativeText(darunter.join(QStringLiteral("\n\n")));
    gibBreite(kasten, QStringLiteral("qt_msgbox_label"), !meldung.text.isEmpty());
    gibBreite(kasten, QStringLiteral("qt_msgbox_informativelabel"), false);

    zeigeAlsKlartext(kasten);

    // One role for all keeps the buttons in their order on every desktop.
    QList<QPushButton *> knoepfe;
    for (const QString &aufschrift : meldung.knoepfe) {
        knoepfe << kasten.addButton(aufschrift, QMessageBox::ActionRole);
    }
    if (knoepfe.isEmpty()) {
        return 0;
    }
    kasten.setDefaultButton(knoepfe.first());
    QPushButton *escape = knoepfe.first();
    if (meldung.verwerfbar) {
        escape = kasten.addButton(QMessageBox::Cancel); // a box without one can't be closed
        escape->hide();
    }
    kasten.setEscapeButton(escape);
    kasten.exec();
    for (int i = 0; i < knoepfe.size(); ++i) {
        if (kasten.clickedButton() == knoepfe[i]) {
            return i;
        }
    }
    return meldung.verwerfbar ? -1 : 0;
}

void zeigeAlsKlartext(const QMessageBox &kasten)
{
    // The box hands its own format on to the heading alone.
    for (QLabel *zeile : kasten.findChildren<QLabel *>()) {
        zeile->setTextFormat(Qt::PlainText);
    }
}
