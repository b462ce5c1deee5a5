#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>

/// Pieces of foods' German names, as a table writes them: "Quark|Topfen".
class Namensstuecke
{
public:
    /// `stuecke` are parted by "|"; null stands for any name.
    explicit Namensstuecke(const char *stuecke)
        : m_stuecke(QString::fromUtf8(stuecke).split(u'|', Qt::SkipEmptyParts))
    {
    }

    /// Whether one of the pieces stands in the name, in just these letters: "Eis" is none of
    /// "Reis".
    bool kommtVorIn(const QString &name) const
    {
        return m_stuecke.isEmpty() || std::ranges::any_of(m_stuecke, [&name](const QString &eines) {
                   return name.contains(eines);
               });
    }

private:
    QStringList m_stuecke;
};
