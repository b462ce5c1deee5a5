#include "Klientenliste.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace {

/// What these letters are written as where there are none on the keyboard.
const struct
{
    QChar zeichen;
    QLatin1String ersatz;
} ersatzschreibung[] = {
    {u'ä', QLatin1String("ae")}, {u'ö', QLatin1String("oe")}, {u'ü', QLatin1String("ue")},
    {u'ß', QLatin1String("ss")}, {u'æ', QLatin1String("ae")}, {u'œ', QLatin1String("oe")},
    {u'ø', QLatin1String("oe")}, {u'å', QLatin1String("aa")},
};

} // namespace

QString suchform(const QString &text)
{
    QString klein = text.normalized(QString::NormalizationForm_KC).toCaseFolded().simplified();
    for (const auto &zeile : ersatzschreibung) {
        klein.replace(zeile.zeichen, zeile.ersatz);
    }
    QString form;
    for (const QChar zeichen : klein.normalized(QString::NormalizationForm_KD)) {
        if (!zeichen.isMark()) {
            form += zeichen;
        }
    }
    return form.toCaseFolded(); // some capitals have no small letter but with their marks off
}

void Klientenliste::setze(const QList<Personenzeile> &personen)
{
    m_eintraege.clear();
    m_eintraege.reserve(personen.size());
    for (const Personenzeile &person : personen) {
        m_eintraege.append({person, suchform(person.name + QLatin1Char(' ') + person.nummer)});
    }
    ordne();
}

void Klientenliste::setze(const Personenzeile &person)
{
    entferne(person.kennung);
    m_eintraege.append({person, suchform(person.name + QLatin1Char(' ') + person.nummer)});
    ordne();
}

void Klientenliste::entferne(const QString &kennung)
{
    m_eintraege.removeIf([&](const Eintrag &eintrag) { return eintrag.person.kennung == kennung; });
}

/// Comparing two names as a language does takes long; each is made ready for it once.
void Klientenliste::ordne()
{
    struct Platz
    {
        QCollatorSortKey name;
        QCollatorSortKey nummer;
        qsizetype stelle;
    };
    QCollator ordnung{QLocale()};
    ordnung.setNumericMode(true);
    std::vector<Platz> plaetze;
    plaetze.reserve(static_cast<std::size_t>(m_eintraege.size()));
    for (qsizetype stelle = 0; stelle < m_eintraege.size(); ++stelle) {
        const Personenzeile &person = m_eintraege[stelle].person;
        plaetze.push_back({ordnung.sortKey(person.name), ordnung.sortKey(person.nummer), stelle});
    }
    std::sort(plaetze.begin(), plaetze.end(), [this](const Platz &a, const Platz &b) {
        if (const int name = a.name.compare(b.name); name != 0) {
            return name < 0;
        }
        if (const int nummer = a.nummer.compare(b.nummer); nummer != 0) {
            return nummer < 0;
        }
        return m_eintraege[a.stelle].person.kennung < m_eintraege[b.stelle].person.kennung;
    });
    QList<Eintrag> geordnet;
    geordnet.reserve(m_eintraege.size());
    for (const Platz &platz : plaetze) {
        geordnet.append(std::move(m_eintraege[platz.stelle]));
    }
    m_eintraege = geordnet;
}

QList<Personenzeile> Klientenliste::suche(const QString &text, bool auchArchivierte) const
{
    const QStringList worte = suchform(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<Personenzeile> treffer;
    for (const Eintrag &eintrag : m_eintraege) {
        const bool passt = std::all_of(worte.begin(), worte.end(), [&](const QString &wort) {
            return eintrag.suchform.contains(wort);
        });
        if (passt && (auchArchivierte || !eintrag.person.archiviert)) {
            treffer << eintrag.person;
        }
    }
    return treffer;
}
