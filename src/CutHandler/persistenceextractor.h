#pragma once

#include "pairedextrema.h"
#include "progress.h"
#include <utility>
#include <vector>

class RowProgress;

/// Pairs the local minima and maxima of a curve by topological persistence.
///
/// The curve is flooded from its lowest value up. Each local minimum starts a component; where
/// two meet, that local maximum is paired with the higher one of their minima. The global
/// minimum is left without a pair. One sort apart, the work grows linearly (Edelsbrunner, Letscher,
/// Zomorodian 2002, Discrete & Computational Geometry 28).
class PersistenceExtractor
{
public:
    /// Pairs the extrema of data. Values that are not numbers are passed over, their neighbours
    /// stand side by side then.
    /// False and no pairs when the progress asked to stop.
    bool extract(const std::vector<float>& data, Progress& progress = NoProgress::Shared());
    /// The pairs of at least that persistence, the least persistent first, ties by the minimum's
    /// index; all for a threshold of 0, none for one below.
    std::vector<PairedExtrema> getPairs(float threshold) const;

private:
    struct Component {
        int m_LeftEdge;
        int m_RightEdge;
        int m_MinIndex;
        float m_MinValue;
        bool m_Alive;
    };

    void takeData(const std::vector<float>& data);
    bool sortIndices(RowProgress& progress);
    bool floodAll(RowProgress& progress);
    void sortPairs();
    void flood(int index);
    void createComponent(int index);
    void extendComponent(int component, int index);
    int mergeComponents(int first, int second);
    void createPair(int a, int b);

    std::vector<float> m_Data;
    // Where each value came from.
    std::vector<int> m_Rows;
    std::vector<std::pair<int, float>> m_SortedIndices;
    // The component that holds an index, -1 for none so far. Kept up at the edges of components
    // only: nothing else is looked at.
    std::vector<int> m_Colors;
    std::vector<Component> m_Components;
    std::vector<PairedExtrema> m_Pairs;
};
