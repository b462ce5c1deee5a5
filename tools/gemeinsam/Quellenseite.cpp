#include "Quellenseite.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QStringList Quellenseite::schluessel(const QString &seite)
{
    static const QRegularExpression zelle(u"^\\| ([A-Z][A-Z0-9-]*(?:-nnnnn)?) \\|"_s,
                                          QRegularExpression::MultilineOption);
    QStringList liste;
    for (const QRegularExpressionMatch &treffer : zelle.globalMatch(seite)) {
        liste.append(treffer.captured(1));
    }
    return liste;
}

Beanstandungen Quellenseite::pruefen(int zeile, const QString &was, const QStringList &quellen,
                                     const QStringList &bekannte)
{
    static const QRegularExpression nummer(u"^USDA-\\d{5}$"_s);
    if (quellen.isEmpty()) {
        return {{zeile, u"key"_s, u"The %1 names no publication"_s.arg(was)}};
    }
    Beanstandungen liste;
    for (const QString &eine : quellen) {
        const QString gelistet = nummer.match(eine).hasMatch() ? u"USDA-nnnnn"_s : eine;
        if (!bekannte.contains(gelistet)) {
            liste.append({zeile, u"key"_s, u"\"%1\" is no publication of the page"_s.arg(eine)});
        }
    }
    return liste;
}
