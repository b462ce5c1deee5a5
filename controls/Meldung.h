#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QMessageBox;
class QWidget;

/// A question or message to the user: what it says in bold, what it explains below, and its
/// buttons from the first, which Return presses, to the last.
struct Meldung
{
    QString text;
    QString erklaerung;
    QStringList knoepfe;
    bool verwerfbar = false; ///< it may be closed without an answer
    bool gefahr = false;     ///< something of the user's may be lost: it carries the warning sign
    QString gegenstand = {}; ///< what it is about, on a line of its own below; null: nothing
};

/// Shows a message over the window and answers with the number of the pressed button, counted
/// from 0, or with −1 when it was closed without one. Made in `main`, so that a test can look at
/// the message and give the answer.
using Meldungstuer = std::function<int(QWidget *fenster, const Meldung &meldung)>;

/// The door that shows a real message box. Escape or closing it presses the first button, which is
/// the harmless one in every message that asks for an answer.
int zeigeMeldung(QWidget *fenster, const Meldung &meldung);

/// Shows the texts of a message box as they are written: in a name, "<b>" is no bold type.
void zeigeAlsKlartext(const QMessageBox &kasten);
