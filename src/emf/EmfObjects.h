// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfRecord.h"
#include "emf/EmfStream.h"

#include <cstdint>
#include <map>
#include <vector>

namespace tarsil {

struct Font;
struct Pen;

/// Objects that every player provides.
namespace emfstock {
constexpr std::uint32_t whiteBrush = 0x80000000;
constexpr std::uint32_t blackPen = 0x80000007;
constexpr std::uint32_t nullPen = 0x80000008;
constexpr std::uint32_t systemFont = 0x8000000D;
} // namespace emfstock

/// The records that create pens, brushes and fonts, with object index 0.
EmfRecord penRecord(const Pen& pen);
EmfRecord brushRecord(std::int32_t color);
EmfRecord fontRecord(const Font& font);

/// The objects of a metafile. Each gets the lowest free index, starting at 1.
class EmfObjects
{
public:
    /// `stream` must outlive this table.
    explicit EmfObjects(EmfStream& stream);

    /// Returns the index of the object that a record creates, and creates it on first use. It
    /// exists until `removeAll`.
    std::uint32_t kept(const EmfRecord& record);

    /// Creates an object for a single use.
    std::uint32_t create(EmfRecord record);

    /// Removes an object, which must not be selected.
    void remove(std::uint32_t index);
    void removeAll();

    /// Whether all objects should be removed before another is created. Bounds memory and the
    /// 16-bit object count in the header for a picture with many pens.
    bool isFull() const { return m_kept.size() >= mostKept; }

    std::uint32_t highestIndex() const { return static_cast<std::uint32_t>(m_isUsed.size()) - 1; }

private:
    static constexpr std::size_t mostKept = 1024;

    EmfStream& m_stream;
    std::vector<bool> m_isUsed {true}; ///< by index; index 0 is reserved
    std::map<std::vector<std::uint32_t>, std::uint32_t> m_kept; ///< index by record
};

} // namespace tarsil
