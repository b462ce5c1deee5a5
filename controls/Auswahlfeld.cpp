#include "Auswahlfeld.h"

#include <QLineEdit>
#include <QSignalBlocker>

Auswahlfeld::Auswahlfeld(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(QComboBox::NoInsert);
    connect(this, &QComboBox::currentTextChanged, this, &Auswahlfeld::textGeaendert);
    connect(this, &QComboBox::activated, this, &Auswahlfeld::betaetigt);
}

QString Auswahlfeld::auswahl() const
{
    QStringList eintraege;
    for (int i = 0; i < count(); ++i) {
        eintraege << itemText(i);
    }
    return eintraege.join(u'|');
}

void Auswahlfeld::setAuswahl(const QString &eintraege)
{
    clear();
    addItems(eintraege.split(u'|'));
}

void Auswahlfeld::textGeaendert(const QString &text)
{
    uebernimm(text);
}

/// A text that is no entry of the list is shown where it can be typed, and as no choice elsewhere;
/// it is held in both cases.
void Auswahlfeld::wertGesetzt()
{
    const QSignalBlocker still(this);
    setCurrentIndex(findText(stringValue(), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (isEditable()) {
        setEditText(stringValue());
    }
}
