// Any bytes at all are read; what reads must be the same after it was written and read again.

#include "Archiver.h"

#include <QtGlobal>

extern "C" int LLVMFuzzerTestOneInput(const quint8 *bytes, std::size_t anzahl)
{
    const auto gelesen = Archiver::read(
        QByteArrayView(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(anzahl)));
    if (!gelesen.gelesen()) {
        const bool ordentlich = gelesen.verzeichnis.isEmpty() && !gelesen.grund.isEmpty() &&
                                gelesen.position >= 0 &&
                                gelesen.position <= static_cast<qsizetype>(anzahl);
        if (!ordentlich) {
            qFatal("damage is not told properly");
        }
        return 0;
    }
    const QByteArray erstes = Archiver::write(gelesen.verzeichnis);
    const auto wieder = Archiver::read(erstes);
    if (!wieder.gelesen() || wieder.verzeichnis.size() != gelesen.verzeichnis.size()) {
        qFatal("what was written can't be read");
    }
    if (Archiver::write(wieder.verzeichnis) != erstes) {
        qFatal("the second writing differs from the first");
    }
    return 0;
}
