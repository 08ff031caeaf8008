#include "memoryuse.h"

#include <QFile>
#include <malloc.h>

Memory MemoryInUse()
{
    QFile status(QStringLiteral("/proc/self/status"));
    Memory memory;
    const auto heap = mallinfo2();
    memory.allocated = double(heap.uordblks) + double(heap.hblkhd);
    if (!status.open(QIODevice::ReadOnly))
        return memory;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const double bytes =
            line.mid(line.indexOf(':') + 1).simplified().split(' ')[0].toDouble() * 1024;
        if (line.startsWith("VmRSS:"))
            memory.resident = bytes;
        if (line.startsWith("VmHWM:"))
            memory.peak = bytes;
    }
    return memory;
}

void RestartPeak()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}
