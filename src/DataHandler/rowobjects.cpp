#include "rowobjects.h"

void RowObjects::Bring(std::unique_ptr<DataRow> object, int row)
{
    Block& block = blockOf(row);
    if (!block.m_Brought)
        block.m_Brought = std::make_unique<std::unique_ptr<DataRow>[]>(BlockRows);
    block.m_Brought[size_t(row) % BlockRows] = std::move(object);
}

DataRow* RowObjects::find(ColumnStore& store, int row)
{
    Block& block = blockOf(row);
    const size_t place = size_t(row) % BlockRows;
    if (block.m_Brought && block.m_Brought[place])
        return block.m_Brought[place].get();
    if (!block.m_Views) {
        block.m_Views = std::make_unique<DataRow[]>(BlockRows);
        const int first = row - int(place);
        for (size_t i = 0; i < BlockRows; ++i)
            block.m_Views[i].LookAt(store, first + int(i));
    }
    return &block.m_Views[place];
}

RowObjects::Block& RowObjects::blockOf(int row)
{
    const size_t block = size_t(row) / BlockRows;
    if (block >= m_Blocks.size())
        m_Blocks.resize(block + 1);
    return m_Blocks[block];
}
