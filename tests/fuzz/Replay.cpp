// Gives a target every file of a folder, where there is no libFuzzer to invent some.

#include "fuzz/Fuzzing.h"

#include <QDirIterator>

int main(int, char** arguments)
{
    QDirIterator files(QString::fromLocal8Bit(arguments[1]), QDir::Files);
    ardeo::promise(files.hasNext());
    while (files.hasNext()) {
        QFile file(files.next());
        ardeo::promise(file.open(QIODevice::ReadOnly));
        qInfo("%s", qUtf8Printable(file.fileName()));
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uchar*>(input.constData()),
                               static_cast<size_t>(input.size()));
    }
}
