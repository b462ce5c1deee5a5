#include "Kommandozeile.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::StringLiterals;

std::optional<QByteArray> Kommandozeile::lesen(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        melden(u"%1: %2"_s.arg(path, file.errorString()));
        return std::nullopt;
    }
    return file.readAll();
}

bool Kommandozeile::schreiben(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        melden(u"%1: %2"_s.arg(path, file.errorString()));
        return false;
    }
    return true;
}

void Kommandozeile::drucken(const QString &zeile)
{
    std::fputs((zeile + u'\n').toUtf8().constData(), stdout);
}

void Kommandozeile::melden(const QString &zeile)
{
    std::fputs((zeile + u'\n').toUtf8().constData(), stderr);
}

void Kommandozeile::melden(const QString &path, const Beanstandungen &beanstandungen)
{
    for (const Beanstandung &eine : beanstandungen) {
        const QString ort = eine.zeile > 0 ? u"%1:%2"_s.arg(path).arg(eine.zeile) : path;
        melden(u"%1: error: %2 [%3]"_s.arg(ort, eine.meldung, eine.regel));
    }
}
