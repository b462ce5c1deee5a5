#pragma once

#include "Dateiprobe.h"
#include "Stoerung.h"

#include <QDateTime>

#include <memory>
#include <utility>

/// What the tests share of files in which the program keeps something of its own. They are linked
/// with `Stoerung.cpp`.
class Merkdateitest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ordner = std::make_unique<Dateiprobe>(); }

    void onlyTheUserCanReadIt()
    {
        QVERIFY(merke());
        QCOMPARE(m_ordner->rechte(m_name), mode_t(0600));
    }

protected:
    using Schritt = Stoerung::Schritt;

    explicit Merkdateitest(QString name) : m_name(std::move(name)) {}

    /// Keeps something in the file. False: it could not be written.
    virtual bool merke() const = 0;

    QString path() const { return m_ordner->path(m_name); }
    QByteArray bytes() const { return m_ordner->bytes(m_name); }
    void lege(const QByteArray &inhalt) const { m_ordner->lege(inhalt, m_name); }
    /// Makes the file one that was last changed then.
    void datiere(const QDateTime &moment) const { m_ordner->datiere(moment, m_name); }
    /// That the file at `path` holds what the one of the test held before.
    static void istKopie(const QString &path, const QByteArray &inhalt)
    {
        QFile kopie(path);
        QVERIFY(kopie.open(QIODevice::ReadOnly));
        QCOMPARE(kopie.readAll(), inhalt);
    }

    /// Rows of the steps that fail when the file is read.
    static void lesestoerungen()
    {
        QTest::addColumn<Schritt>("schritt");
        QTest::newRow("it does not open") << Schritt::Oeffnen;
        QTest::newRow("it can't be read") << Schritt::Lesen;
    }
    /// Rows of the steps that fail when it is written.
    static void schreibstoerungen()
    {
        QTest::addColumn<Schritt>("schritt");
        QTest::newRow("nothing can be made") << Schritt::Anlegen;
        QTest::newRow("the disk is full") << Schritt::Schreiben;
        QTest::newRow("it does not get to the disk") << Schritt::DateiSichern;
        QTest::newRow("the folder does not get to the disk") << Schritt::OrdnerSichern;
    }

    std::unique_ptr<Dateiprobe> m_ordner;

private:
    QString m_name;
};
