#include "Auswahlfeld.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QItemDelegate>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringListModel>

#include <algorithm>

namespace {

/// Offers what its list holds, whatever was typed: the list is made anew with every letter.
class Vorschlaege : public QCompleter
{
public:
    explicit Vorschlaege(QObject *parent) : QCompleter(QStringList(), parent) {}

    void setzeListe(const QStringList &liste)
    {
        static_cast<QStringListModel *>(model())->setStringList(liste);
    }

    QStringList splitPath(const QString & /*path*/) const override { return {QString()}; }

protected:
    /// Return picks the marked entry. The field itself would take it for the end of a typed text,
    /// and the entry would count twice.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != widget() && event->type() == QEvent::KeyPress) {
            const int taste = static_cast<QKeyEvent *>(event)->key();
            const QModelIndex markiert = popup()->selectionModel()->selectedIndexes().value(0);
            if (markiert.isValid() && (taste == Qt::Key_Return || taste == Qt::Key_Enter)) {
                popup()->hide();
                Q_EMIT activated(markiert);
                return true;
            }
        }
        return QCompleter::eventFilter(watched, event);
    }
};

/// Writes the words for "nothing chosen" where an entry is empty: an empty row looks like a
/// mistake.
class Eintragsmaler : public QItemDelegate
{
public:
    explicit Eintragsmaler(QComboBox *feld) : QItemDelegate(feld), m_feld(feld) {}

protected:
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override
    {
        QItemDelegate::drawDisplay(painter, option, rect,
                                   text.isEmpty() ? m_feld->lineEdit()->placeholderText() : text);
    }

private:
    QComboBox *m_feld;
};

} // namespace

Auswahlfeld::Auswahlfeld(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(QComboBox::NoInsert);
    connect(this, &QComboBox::currentTextChanged, this, &Auswahlfeld::textGeaendert);
    connect(this, &QComboBox::activated, this, &Auswahlfeld::meldeAuswahl);
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

/// The chooser's own completion would take "wodka" for the entry "Wodka" by itself.
void Auswahlfeld::setFreitext(bool frei)
{
    setEditable(frei);
    if (!frei) {
        return;
    }
    setItemDelegate(new Eintragsmaler(this));
    auto *vorschlaege = new Vorschlaege(this);
    setCompleter(vorschlaege);
    connect(lineEdit(), &QLineEdit::textEdited, vorschlaege,
            [this, vorschlaege](const QString &text) {
                vorschlaege->setzeListe(auswahl().split(u'|').filter(text, Qt::CaseInsensitive));
            });
    connect(lineEdit(), &QLineEdit::editingFinished, this, &Auswahlfeld::meldeEingabe);
}

void Auswahlfeld::meldeAuswahl()
{
    if (isEditable()) {
        lineEdit()->setModified(false); // what was typed has become an entry
    }
    Q_EMIT betaetigt();
}

void Auswahlfeld::meldeEingabe()
{
    if (lineEdit()->isModified()) {
        lineEdit()->setModified(false);
        setStringValue(nameFuer(stringValue()));
        Q_EMIT betaetigt();
    }
}

/// The name that was meant: the one that is spelled alike, else the first that is so but for upper
/// and lower case, else what was typed.
QString Auswahlfeld::nameFuer(const QString &text) const
{
    const QStringList namen = auswahl().split(u'|') + m_weitereNamen;
    const auto gemeint = std::find_if(namen.begin(), namen.end(), [&text](const QString &name) {
        return name.compare(text, Qt::CaseInsensitive) == 0;
    });
    return namen.contains(text) || gemeint == namen.end() ? text : *gemeint;
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
