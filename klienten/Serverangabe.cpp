#include "Serverangabe.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

namespace {

using Paar = std::pair<QString, QString>;

const QStringList geheimes = {QStringLiteral("password"), QStringLiteral("sslpassword")};

Serverangabe falsch(Serverangabe::Fehler fehler)
{
    return {{}, fehler};
}

/// What was read, unless there is something in it that has no place there or can't be passed on:
/// on the way to libpq a semicolon becomes a blank.
Serverangabe geprueft(const QList<Paar> &paare)
{
    const auto eines = [&paare](const auto &bedingung) {
        return std::any_of(paare.begin(), paare.end(), bedingung);
    };
    if (eines([](const Paar &paar) { return geheimes.contains(paar.first); })) {
        return falsch(Serverangabe::Fehler::Kennwort);
    }
    if (paare.isEmpty() || eines([](const Paar &paar) {
            return paar.second.contains(QLatin1Char(';')) || paar.second.contains(QChar(u'\0'));
        })) {
        return falsch(Serverangabe::Fehler::Unlesbar);
    }
    return {paare, {}};
}

Serverangabe leseAdresse(const QString &text)
{
    const QUrl adresse(text, QUrl::StrictMode);
    if (!adresse.isValid()) {
        return falsch(Serverangabe::Fehler::Unlesbar);
    }
    if (!adresse.password().isEmpty()) {
        return falsch(Serverangabe::Fehler::Kennwort);
    }
    QList<Paar> paare;
    const auto nimm = [&paare](const char *wort, const QString &wert) {
        if (!wert.isEmpty()) {
            paare.append({QLatin1String(wort), wert});
        }
    };
    nimm("host", adresse.host());
    nimm("port", adresse.port() > 0 ? QString::number(adresse.port()) : QString());
    nimm("user", adresse.userName());
    nimm("dbname", adresse.path().mid(1));
    for (const auto &[wort, wert] : QUrlQuery(adresse).queryItems(QUrl::FullyDecoded)) {
        paare.append({wort, wert});
    }
    return geprueft(paare);
}

Serverangabe lesePaare(const QString &text)
{
    // A value stands in quotes or ends at the next blank; a backslash takes the sign behind it as
    // it is.
    static const QRegularExpression paar(QStringLiteral(
        R"(\s*([a-z_]+)\s*=\s*(?:'((?:[^'\\]|\\.)*)'|((?:[^\s'\\]|\\.)*))(?=\s|$))"));
    static const QRegularExpression rueckstrich(QStringLiteral(R"(\\(.))"));
    QList<Paar> paare;
    qsizetype ort = 0;
    while (ort < text.size()) {
        const QRegularExpressionMatch treffer =
            paar.match(text, ort, QRegularExpression::NormalMatch,
                       QRegularExpression::AnchorAtOffsetMatchOption);
        if (!treffer.hasMatch()) {
            return falsch(Serverangabe::Fehler::Unlesbar);
        }
        QString wert = treffer.captured(2) + treffer.captured(3);
        paare.append({treffer.captured(1), wert.replace(rueckstrich, QStringLiteral("\\1"))});
        ort = treffer.capturedEnd();
    }
    return geprueft(paare);
}

} // namespace

Serverangabe leseServerangabe(const QString &text)
{
    static const QRegularExpression dienst(QStringLiteral(R"(^[\w.-]+$)"));
    const QString angabe = text.trimmed();
    if (angabe.isEmpty()) {
        return falsch(Serverangabe::Fehler::Leer);
    }
    if (angabe.startsWith(QLatin1String("postgresql://")) ||
        angabe.startsWith(QLatin1String("postgres://"))) {
        return leseAdresse(angabe);
    }
    if (dienst.match(angabe).hasMatch()) {
        return geprueft({{QStringLiteral("service"), angabe}});
    }
    return lesePaare(angabe);
}

QString verbindungstext(const QList<Paar> &paare, const QList<Paar> &sonst)
{
    QList<Paar> alle = paare;
    for (const Paar &weiteres : sonst) {
        const bool genannt = std::any_of(paare.begin(), paare.end(), [&](const Paar &paar) {
            return paar.first == weiteres.first;
        });
        if (!genannt) {
            alle.append(weiteres);
        }
    }
    QStringList teile;
    for (const auto &[wort, wert] : std::as_const(alle)) {
        QString maskiert = wert;
        maskiert.replace(QLatin1String("\\"), QLatin1String("\\\\"));
        maskiert.replace(QLatin1String("'"), QLatin1String("\\'"));
        teile << wort + QLatin1String("='") + maskiert + QLatin1Char('\'');
    }
    return teile.join(QLatin1Char(' '));
}
