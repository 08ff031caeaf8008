#pragma once

#include "datarow.h"
#include <memory>
#include <vector>

/// The row objects of a table: one for each row that somebody has asked for or has brought along.
/// They stay where they are for good.
class RowObjects
{
public:
    /// The object of a row of that store.
    DataRow* Get(ColumnStore& store, int row)
    {
        const auto block = size_t(row) / BlockRows;
        if (block < m_Blocks.size() && m_Blocks[block].m_Views && !m_Blocks[block].m_Brought)
            return &m_Blocks[block].m_Views[size_t(row) % BlockRows];
        return find(store, row);
    }
    /// Takes an object as that of a row.
    void Bring(std::unique_ptr<DataRow> object, int row);

private:
    static constexpr size_t BlockRows = 256;

    struct Block {
        // Made together for all rows of the block.
        std::unique_ptr<DataRow[]> m_Views;
        // Null where the row's object is the view.
        std::unique_ptr<std::unique_ptr<DataRow>[]> m_Brought;
    };

    DataRow* find(ColumnStore& store, int row);
    Block& blockOf(int row);

    std::vector<Block> m_Blocks;
};
