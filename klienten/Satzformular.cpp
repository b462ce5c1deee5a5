#include "Satzformular.h"

#include "Eingaben.h"
#include "Feldworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScopedValueRollback>

namespace {

/// Notes are kept while one is still writing, in the pauses.
constexpr int schreibpause = 800; // milliseconds

/// Shows how days are typed: which of its figures is the day can't be mistaken.
const QDate beispieltag(1980, 12, 31);

constexpr double beispielzahl = 72.5;

/// How a kept value stands in a field into which one types: as it is told, without its unit.
QString alsText(const char *spalte, const QVariant &wert)
{
    if (wert.isNull()) {
        return {};
    }
    if (feldeinheit(spalte).isEmpty()) {
        return feldworte(spalte, wert);
    }
    return zahlenform().toString(wert.toDouble(), 'g', 6);
}

/// The labels that tell what is wrong with a field are called as it is, and this.
const QRegularExpression fehlerworte(QStringLiteral("Fehler$"));

bool istTag(const char *spalte)
{
    return qstrcmp(spalte, "geburt") == 0 || qstrcmp(spalte, "datum") == 0;
}

/// Reads a field into which one types. False when it says nothing that can be kept.
bool ausText(const char *spalte, const QString &text, const QDate &heute, QVariant &wert)
{
    if (istTag(spalte)) {
        const Eingelesenes<QDate> tag = leseTag(text, heute);
        wert = tag.wert ? QVariant(tag.wert->toString(Qt::ISODate))
                        : QVariant(QMetaType(QMetaType::QString));
        return tag.lesbar;
    }
    if (const QString einheit = feldeinheit(spalte); !einheit.isEmpty()) {
        const Eingelesenes<double> mass = leseMass(text, einheit);
        wert = mass.wert ? QVariant(*mass.wert) : QVariant(QMetaType(QMetaType::Double));
        return mass.lesbar;
    }
    wert = text.trimmed();
    return true;
}

QString unlesbar(const char *spalte)
{
    return istTag(spalte)
               ? localizedString(QStringLiteral("Kein Tag wie %1.")).arg(tagesworte(beispieltag))
               : localizedString(QStringLiteral("Keine Zahl wie %1."))
                     .arg(zahlenform().toString(beispielzahl));
}

} // namespace

Satzformular::Satzformular(QWidget &seite) : m_seite(seite)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(schreibpause);
    connect(&m_pause, &QTimer::timeout, this, &Satzformular::eingegeben);
    for (QWidget *feld : seite.findChildren<QWidget *>()) {
        if (!feld->objectName().isEmpty()) {
            verbinde(feld);
        }
    }
    // A label takes part in breaking lines from its first words on, and that divides the page anew:
    // better now than when something is wrong.
    for (QLabel *worte : seite.findChildren<QLabel *>(fehlerworte)) {
        worte->setText(QStringLiteral(" "));
        worte->setText(QString());
    }
}

void Satzformular::verbinde(QWidget *feld)
{
    if (auto *zeile = qobject_cast<QLineEdit *>(feld)) {
        connect(zeile, &QLineEdit::editingFinished, this, &Satzformular::eingegeben);
    } else if (auto *wahl = qobject_cast<QComboBox *>(feld)) {
        connect(wahl, &QComboBox::activated, this, &Satzformular::eingegeben);
    } else if (auto *knopf = qobject_cast<QAbstractButton *>(feld); knopf && knopf->isCheckable()) {
        connect(knopf, &QAbstractButton::clicked, this, &Satzformular::eingegeben);
    } else if (auto *notiz = qobject_cast<QPlainTextEdit *>(feld)) {
        connect(notiz, &QPlainTextEdit::textChanged, this, [this] {
            if (!m_stellt) {
                m_pause.start();
            }
        });
    }
}

/// A new record that has got its key is the same as before.
void Satzformular::beginne(const QString &kennung)
{
    if (m_kennung != kennung && !m_kennung.isNull()) {
        m_gezeigt.clear();
        m_fehlerhaft.clear();
    }
    m_kennung = kennung;
}

QWidget *Satzformular::feld(const QString &spalte) const
{
    return m_seite.findChild<QWidget *>(spalte);
}

void Satzformular::bieteAn(const QString &spalte, const QStringList &worte,
                           const QVariantList &werte, bool auchNichts)
{
    auto *wahl = qobject_cast<QComboBox *>(feld(spalte));
    const QVariant gewaehlt = wahl->currentData();
    wahl->clear();
    if (auchNichts) {
        wahl->addItem(localizedString(QStringLiteral("nicht erfragt")), QVariant());
    }
    for (qsizetype i = 0; i < worte.size(); ++i) {
        wahl->addItem(worte[i], werte[i]);
    }
    wahl->setCurrentIndex(std::max(0, wahl->findData(gewaehlt)));
}

void Satzformular::zeigeFeld(const QString &spalte, const QVariant &wert)
{
    QWidget *ziel = feld(spalte);
    if (ziel == nullptr) {
        return;
    }
    const QScopedValueRollback stellt(m_stellt, true);
    const bool derselbe = m_gezeigt.contains(spalte) && m_gezeigt.value(spalte) == wert;
    if (derselbe && (ziel->hasFocus() || m_fehlerhaft.contains(spalte))) {
        return;
    }
    m_gezeigt[spalte] = wert;
    sageFehler(spalte, {});
    const QByteArray name = spalte.toLatin1();
    if (auto *zeile = qobject_cast<QLineEdit *>(ziel)) {
        const QString text = alsText(name.constData(), wert);
        if (istTag(name.constData()) && zeile->isEnabled()) {
            zeile->setPlaceholderText(tagesworte(beispieltag));
        }
        if (zeile->text() != text) {
            zeile->setText(text);
        }
    } else if (auto *wahl = qobject_cast<QComboBox *>(ziel)) {
        int stelle = wert.isNull() ? 0 : wahl->findData(wert);
        if (stelle < 0) {
            wahl->addItem(wert.toString(), wert); // from a version that offers more
            stelle = wahl->count() - 1;
        }
        wahl->setCurrentIndex(stelle);
    } else if (auto *knopf = qobject_cast<QAbstractButton *>(ziel)) {
        knopf->setChecked(wert.toInt() != 0);
    } else if (auto *notiz = qobject_cast<QPlainTextEdit *>(ziel);
               notiz != nullptr && notiz->toPlainText() != wert.toString()) {
        notiz->setPlainText(wert.toString());
    }
}

bool Satzformular::liesFeld(const QString &spalte, const char *name, const QDate &heute,
                            QVariant &wert)
{
    const QWidget *quelle = feld(spalte);
    if (const auto *zeile = qobject_cast<const QLineEdit *>(quelle)) {
        const bool lesbar = ausText(name, zeile->text(), heute, wert);
        sageFehler(spalte, lesbar ? QString() : unlesbar(name));
        // A figure that stands there with fewer digits than it has is not changed by being read.
        if (lesbar && zeile->text() == alsText(name, m_gezeigt.value(spalte))) {
            wert = QVariant();
        }
        return lesbar;
    }
    if (const auto *wahl = qobject_cast<const QComboBox *>(quelle)) {
        const QVariant gewaehlt = wahl->currentData();
        wert = gewaehlt.isValid() ? gewaehlt : QVariant(QMetaType(QMetaType::Int));
    } else if (const auto *knopf = qobject_cast<const QAbstractButton *>(quelle)) {
        wert = knopf->isChecked() ? 1 : 0;
    } else if (const auto *notiz = qobject_cast<const QPlainTextEdit *>(quelle)) {
        wert = notiz->toPlainText();
    }
    return true;
}

void Satzformular::sageFehler(const QString &spalte, const QString &worte)
{
    if (worte.isEmpty()) {
        m_fehlerhaft.remove(spalte);
    } else {
        m_fehlerhaft.insert(spalte);
    }
    if (auto *ziel = m_seite.findChild<QLabel *>(spalte + QStringLiteral("Fehler"))) {
        ziel->setText(worte);
    }
    if (QWidget *quelle = feld(spalte)) {
        quelle->setAccessibleDescription(worte);
    }
}

void Satzformular::gehZu(const QString &spalte)
{
    if (auto *zeile = qobject_cast<QLineEdit *>(feld(spalte))) {
        zeile->setFocus();
        zeile->selectAll();
    }
}

void Satzformular::schliesseAb()
{
    if (m_pause.isActive()) {
        m_pause.stop();
        Q_EMIT eingegeben();
    }
}
