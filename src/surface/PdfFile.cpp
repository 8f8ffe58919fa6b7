// SPDX-License-Identifier: Apache-2.0
#include "surface/PdfFile.h"

#include "base/user/RunTimeError.h"

#include <QDateTime>
#include <QHashSeed>

namespace tarsil {

namespace {

/// The position after `key` in a PDF.
qsizetype after(const QByteArray& pdf, const QByteArray& key, qsizetype from = 0)
{
    const qsizetype start = pdf.indexOf(key, from);
    if (start < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PdfFile",
                           "the document has no date or no table of its objects");
    return start + key.size();
}

/// Adds `shift` to a number of fixed or free width that starts at `start` and ends at `end`.
void addToNumber(QByteArray& pdf, qsizetype start, qsizetype end, qsizetype shift)
{
    const qsizetype number = pdf.mid(start, end - start).toLongLong() + shift;
    pdf.replace(start, end - start, QByteArray::number(number).rightJustified(end - start, '0'));
}

/// Writes a date over that of the clock, and updates the offsets of the objects after it.
QByteArray withDate(QByteArray pdf, const QByteArray& date)
{
    constexpr qsizetype entrySize = 20; ///< of the table of objects: "0000000015 00000 n \n"
    constexpr qsizetype offsetSize = 10;
    const qsizetype start = after(pdf, "/CreationDate (");
    const qsizetype end = pdf.indexOf(')', start);
    const qsizetype shift = date.size() - (end - start);
    pdf.replace(start, end - start, date);
    const qsizetype pointer = after(pdf, "\nstartxref\n", pdf.lastIndexOf("\nstartxref\n"));
    addToNumber(pdf, pointer, pdf.indexOf('\n', pointer), shift);
    const qsizetype table = pdf.lastIndexOf("\nxref\n");
    qsizetype entry = after(pdf, "\n", after(pdf, "\nxref\n", table));
    for (; pdf.at(entry) != 't'; entry += entrySize) { // up to "trailer"
        if (pdf.mid(entry, offsetSize).toLongLong() > start)
            addToNumber(pdf, entry, entry + offsetSize, shift);
    }
    return pdf;
}

} // namespace

PdfFile::FixedHashOrder::FixedHashOrder()
{
    QHashSeed::setDeterministicGlobalSeed();
}

PdfFile::FixedHashOrder::~FixedHashOrder()
{
    QHashSeed::resetRandomGlobalSeed();
}

PdfFile::PdfFile(const QString& title) : m_writer(&m_buffer)
{
    m_buffer.open(QIODevice::WriteOnly);
    m_writer.setTitle(title);
}

QByteArray PdfFile::bytes(const QDateTime& date) const
{
    return withDate(m_buffer.data(),
                    date.toString(QStringLiteral("'D:'yyyyMMddHHmmss")).toLatin1());
}

} // namespace tarsil
