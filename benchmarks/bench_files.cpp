#include "cutcollection.h"
#include "filewriter.h"
#include "groundtruithreader.h"
#include "labelcollection.h"
#include "labelwriter.h"
#include "recordingfile.h"
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace
{

constexpr int columns = 9;
constexpr int instances = 100'000;

// A recording and its labels: equally long instances, taking turns in four behaviours.
class LabelledRecording
{
public:
    explicit LabelledRecording(int rows) : m_Data(MakeRecording(rows, columns))
    {
        m_Data->NumberRows();
        for (const char* name : {"rest", "graze", "walk", "run"})
            m_Labels.AddLabel(new BehaviorLabel(QLatin1String(name)));
        const int length = rows / instances;
        for (int i = 0; i < instances; ++i) {
            m_Segments.push_back(std::make_unique<CutSegment>(i * length, (i + 1) * length));
            auto* instance = new LabelInstance(m_Segments.back().get());
            m_Labels.GetLabel(i % 4)->AddLabelQuietly(instance);
        }
    }

    DataSet* GetDataSet() { return m_Data.get(); }
    LabelCollection* GetLabels() { return &m_Labels; }
    QString GetPath() const { return m_Directory.filePath(QStringLiteral("output")); }

private:
    std::unique_ptr<DataSet> m_Data;
    std::vector<std::unique_ptr<CutSegment>> m_Segments;
    LabelCollection m_Labels;
    QTemporaryDir m_Directory;
};

void writeLabels(benchmark::State& state, bool (LabelWriter::*write)(const LabelCollection*))
{
    LabelledRecording recording(int(state.range(0)));
    LabelWriter writer(recording.GetPath());
    writer.SetDataSet(recording.GetDataSet());
    for (auto _ : state) {
        if (!(writer.*write)(recording.GetLabels()))
            state.SkipWithError("nothing was written");
    }
}

void readProject(benchmark::State& state)
{
    LabelledRecording recording(int(state.range(0)));
    LabelWriter writer(recording.GetPath());
    writer.SetDataSet(recording.GetDataSet());
    writer.WriteProject(recording.GetLabels());
    for (auto _ : state) {
        GroundTruithReader reader(recording.GetPath());
        reader.SetDataSet(recording.GetDataSet());
        if (!reader.ReadFile() || reader.GetCollection()->Names().size() != 4)
            state.SkipWithError("the project was not read");
    }
}

void writeData(benchmark::State& state)
{
    LabelledRecording recording(int(state.range(0)));
    FileWriter writer(recording.GetPath());
    writer.SetDataSet(recording.GetDataSet());
    for (auto _ : state) {
        if (!writer.Write())
            state.SkipWithError("nothing was written");
    }
}

} // namespace

BENCHMARK_CAPTURE(writeLabels, project, &LabelWriter::WriteProject)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(readProject)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(writeLabels, aligned, &LabelWriter::WriteAligned)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(writeData)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();
