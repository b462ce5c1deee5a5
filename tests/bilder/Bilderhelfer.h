#pragma once

#include "Bilderrahmen.h"

/// A picture test of one word, as a program that `TestBilderrahmen` runs: a test can't fail within
/// another one that looks on. Its arguments are the word, the folder of the pictures to expect and
/// the one for what differs.
class Bilderhelfer : public QObject
{
    Q_OBJECT

public:
    explicit Bilderhelfer(const QString &wort) : m_wort(wort) {}

private Q_SLOTS:
    void word();

private:
    QString m_wort;
};
