// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPdfWriter>
#include <QString>

class QDateTime;

namespace tarsil {

/// A PDF in memory. Its bytes depend only on what is drawn and on the given date: neither on the
/// clock nor on chance. Only one such object may exist at a time.
class PdfFile
{
public:
    explicit PdfFile(const QString& title);

    /// The device to draw on.
    QPdfWriter& writer() { return m_writer; }

    /// The bytes of the file, with `date` in its properties. Painting must have ended. Error 5 when
    /// nothing was drawn.
    QByteArray bytes(const QDateTime& date) const;

private:
    /// The writer numbers the fonts in the order of a hash table. While this object exists, that
    /// order does not depend on chance.
    class FixedHashOrder
    {
    public:
        FixedHashOrder();
        ~FixedHashOrder();
        FixedHashOrder(const FixedHashOrder&) = delete;
        FixedHashOrder& operator=(const FixedHashOrder&) = delete;
    };

    FixedHashOrder m_order;
    QBuffer m_buffer;
    QPdfWriter m_writer;
};

} // namespace tarsil
