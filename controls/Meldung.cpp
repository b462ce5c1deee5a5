#include "Meldung.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

int zeigeMeldung(QWidget *fenster, const Meldung &meldung)
{
    QMessageBox kasten(fenster);
    kasten.setIcon(meldung.verwerfbar ? QMessageBox::Question : QMessageBox::Warning);
    // A message without a heading says its explanation where the heading would stand.
    kasten.setText(meldung.text.isEmpty() ? meldung.erklaerung : meldung.text);
    kasten.setInformativeText(meldung.text.isEmpty() ? QString() : meldung.erklaerung);

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
