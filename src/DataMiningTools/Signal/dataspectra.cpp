#include "dataspectra.h"

#include "rowwindow.h"
#include <algorithm>

DataSpectra::DataSpectra(RowWindow& rows, int longestFilter)
    : m_Length(rows.GetLength()), m_Correlation(rows.GetLength(), longestFilter)
{
    const BlockFft& fft = m_Correlation.GetFft();
    AlignedArray<double> block = fft.MakeValues();
    // Shorter filters have windows behind the last one of the longest.
    for (int start = 0; start < m_Length; start += m_Correlation.GetStep()) {
        const int end = std::min(start + fft.GetLength(), m_Length);
        FillBlock(rows.Get(start, end), end - start, block);
        m_Blocks.push_back(fft.MakeSpectrum());
        fft.Forward(block.GetData(), m_Blocks.back().GetData());
    }
}

void DataSpectra::Correlate(const double* filter, int filterLength, const WindowSink& sink)
{
    const FilterSpectrum spectrum(m_Correlation.GetFft(), filter, filterLength);
    const int windows = m_Length - filterLength + 1;
    int start = 0;
    for (const auto& block : m_Blocks) {
        const int count = std::min(m_Correlation.GetStep(), windows - start);
        if (count < 1)
            break;
        sink(start, m_Correlation.CorrelateSpectrum(block.GetData(), spectrum), count);
        start += count;
    }
}
