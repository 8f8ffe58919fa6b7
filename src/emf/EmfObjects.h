#pragma once

#include "emf/EmfRecord.h"
#include "emf/EmfStream.h"

#include <cstdint>
#include <map>
#include <vector>

namespace tarsil {

struct Font;
struct Pen;

/// Objects that every player has.
namespace emfstock {
constexpr std::uint32_t whiteBrush = 0x80000000;
constexpr std::uint32_t blackPen = 0x80000007;
constexpr std::uint32_t nullPen = 0x80000008;
constexpr std::uint32_t systemFont = 0x8000000D;
} // namespace emfstock

/// The create records of pens, brushes and fonts; their object index is still 0.
EmfRecord penRecord(const Pen& pen);
EmfRecord brushRecord(std::int32_t color);
EmfRecord fontRecord(const Font& font);

/// The objects of a metafile and their indexes. An object gets the lowest free index, from 1 on.
class EmfObjects
{
public:
    /// `stream` must outlive this table.
    explicit EmfObjects(EmfStream& stream);

    /// The index of an object that is created by such a record, at first use. It stays until all
    /// are removed.
    std::uint32_t kept(const EmfRecord& record);

    /// Creates an object for one use.
    std::uint32_t create(EmfRecord record);

    /// Removes an object that is selected no longer.
    void remove(std::uint32_t index);
    void removeAll();

    /// Whether so many are kept that all should be removed before another one is: a picture of
    /// ever new pens must not fill the memory, nor the header's 16-bit count.
    bool isFull() const { return m_kept.size() >= mostKept; }

    std::uint32_t highestIndex() const { return static_cast<std::uint32_t>(m_isUsed.size()) - 1; }

private:
    static constexpr std::size_t mostKept = 1024;

    EmfStream& m_stream;
    std::vector<bool> m_isUsed {true}; ///< by index; index 0 is nobody's
    std::map<std::vector<std::uint32_t>, std::uint32_t> m_kept; ///< index by record
};

} // namespace tarsil
