#include "instancecolumnswriter.h"

#include "behaviorlabel.h"
#include "cutsegment.h"
#include "dataset.h"
#include "rowprogress.h"
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
                          int attribute, Progress* progress)
{
    const int count = behavior.GetInstanceCount();
    const auto segment = [&](int i) { return behavior.GetInstance(i)->GetSegment(); };
    int lines = 0;
    for (int i = 0; i < count; ++i)
        lines = std::max(lines, segment(i)->GetLength());
    RowProgress rows(*progress, lines);
    const ConstSpan<double> values = data.GetColumn(attribute);
    return WriteTextFile(path, [&](TextOutput& out) {
        writeHeader(out, count, data.GetAttributeName(attribute));
        for (int line = 0; line < lines && rows.Advance(); ++line) {
            for (int i = 0; i < count; ++i) {
                const int row = segment(i)->GetFrom() + line;
                const bool isInside = row < std::min(segment(i)->GetTo(), values.size());
                out << (i == 0 ? "" : ", ");
                out.Number(isInside ? values[row] : 0);
            }
            out << '\n';
        }
        if (rows.IsStopped())
            out.Cancel();
    });
}
