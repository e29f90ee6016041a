#pragma once

#include "documents/DocumentColors.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantorel {

/// The open blocks of a style sheet.
class StyleBlocks {
public:
    /// `blocks` gets the blocks that are opened. It must outlive this object.
    explicit StyleBlocks(std::vector<DocumentBlock>& blocks) : _blocks(blocks) {}

    [[nodiscard]] bool isEmpty() const { return _open.empty(); }
    /// The index of the innermost block, or `notInDocument`.
    [[nodiscard]] std::uint32_t current() const
    {
        return _open.empty() ? notInDocument : _open.back();
    }

    void open(std::size_t begin)
    {
        if (_open.size() == mostNested) {
            ++_deeper;
            return;
        }
        const auto block = static_cast<std::uint32_t>(_blocks.size());
        _blocks.push_back({{begin, begin}, current()});
        _open.push_back(block);
    }
    /// Closes the innermost block, if there is one.
    void close(std::size_t end)
    {
        if (_deeper > 0) {
            --_deeper;
        } else if (!_open.empty()) {
            _blocks[_open.back()].range.end = end;
            _open.pop_back();
        }
    }
    void closeAll(std::size_t end)
    {
        while (!_open.empty())
            close(end);
    }

private:
    /// Blocks nested deeper than this many count as the one around them.
    static constexpr std::size_t mostNested = 48;

    std::vector<DocumentBlock>& _blocks;
    std::vector<std::uint32_t> _open;
    /// How many blocks are open within the deepest one in `_open`.
    std::size_t _deeper = 0;
};

}  // namespace vantorel
