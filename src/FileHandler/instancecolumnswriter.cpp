#include "instancecolumnswriter.h"

#include "behaviorlabel.h"
#include "cutsegment.h"
#include "dataset.h"
#include "textoutput.h"
#include <algorithm>

namespace
{

void writeHeader(TextOutput& out, int columns, const QString& attribute)
{
    for (int column = 0; column < columns; ++column)
        out << (column == 0 ? "" : ", ") << "Behavior " << column + 1 << " (" << attribute << " )";
    out << '\n';
}

} // namespace

bool WriteInstanceColumns(const QString& path, const DataSet& data, const BehaviorLabel& behavior,
                          int attribute)
{
    const int count = behavior.GetInstanceCount();
    const auto segment = [&](int i) { return behavior.GetInstance(i)->GetSegment(); };
    int lines = 0;
    for (int i = 0; i < count; ++i)
        lines = std::max(lines, segment(i)->GetLength());
    return WriteTextFile(path, [&](TextOutput& out) {
        writeHeader(out, count, data.GetAttributeName(attribute));
        for (int line = 0; line < lines; ++line) {
            for (int i = 0; i < count; ++i) {
                const int row = segment(i)->GetFrom() + line;
                const bool isInside = row < std::min(segment(i)->GetTo(), data.GetRowCount());
                out << (i == 0 ? "" : ", ");
                out.Number(isInside ? data.GetValue(row, attribute) : 0);
            }
            out << '\n';
        }
    });
}
