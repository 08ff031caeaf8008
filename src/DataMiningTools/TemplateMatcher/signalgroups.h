#pragma once

#include <QHash>
#include <QString>
#include <vector>

class PatternsDataObject;
class SignalTemplateDataObject;

/// Hands out the signals of a template, those searched in one attribute together as far as each
/// signal collection keeps its order: its confidences are summed in single precision, in which
/// the order of the signals counts.
class SignalGroups
{
public:
    struct Member {
        size_t m_Collection;
        const SignalTemplateDataObject* m_Signal;
    };
    struct Group {
        int m_Attribute = 0;
        std::vector<Member> m_Members;
    };

    /// Borrows both. attributeMap: attribute 0 for a name that is not in it.
    SignalGroups(const PatternsDataObject& pattern, const QHash<QString, int>& attributeMap);

    /// The next signals; none at the end.
    Group Take();

private:
    const SignalTemplateDataObject* nextOf(size_t collection) const;
    int attributeOf(const SignalTemplateDataObject& signal) const;

    const PatternsDataObject& m_Pattern;
    const QHash<QString, int>& m_AttributeMap;
    // The first signal of each collection that has not been taken.
    std::vector<int> m_Next;
};
