// SPDX-License-Identifier: Apache-2.0

// Rich text on a plot, as written to pictures for other programs.

#include "FuzzTarget.h"

#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <QGuiApplication>
#include <QXmlStreamReader>
#include <QtEndian>

namespace {

using namespace tarsil;

/// Qt's fonts need an application, but no screen.
void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* words[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, words);
}

void requireWellFormed(const QByteArray& svg)
{
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        const bool isElement = reader.readNext() == QXmlStreamReader::StartElement;
        fuzz::require(!isElement || reader.name() != QLatin1String("script"), "no program in it");
        for (const QXmlStreamAttribute& attribute : reader.attributes())
            fuzz::require(!attribute.name().startsWith(QLatin1String("on")), "no handlers in it");
    }
    fuzz::require(!reader.hasError(), "an SVG is well formed");
}

quint32 number(const QByteArray& metafile, qsizetype offset)
{
    fuzz::require(offset + 4 <= metafile.size(), "a metafile ends after its last record");
    return qFromLittleEndian<quint32>(metafile.constData() + offset);
}

/// Records must be consecutive up to the end of the file, as the header states.
void requireRecords(const QByteArray& metafile)
{
    constexpr qsizetype sizeInHeader = 48;
    constexpr qsizetype countInHeader = 52;
    constexpr quint32 endOfFile = 14;
    quint32 type = 0;
    quint32 count = 0;
    for (qsizetype offset = 0; offset < metafile.size(); ++count) {
        type = number(metafile, offset);
        const quint32 bytes = number(metafile, offset + 4);
        fuzz::require(bytes >= 8 && bytes % 4 == 0, "a record has a size");
        offset += bytes;
        fuzz::require(offset <= metafile.size(), "a record ends within the file");
    }
    fuzz::require(type == endOfFile, "the last record is the end");
    fuzz::require(number(metafile, sizeInHeader) == static_cast<quint32>(metafile.size()),
                  "the header contains the size");
    fuzz::require(number(metafile, countInHeader) == count,
                  "the header contains the number of records");
}

} // namespace

/// Fontconfig keeps its data until the process ends, which is not a leak of this program.
extern "C" const char* __lsan_default_suppressions() // NOLINT(clang-diagnostic-reserved-identifier)
{
    return "leak:libfontconfig";
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    makeApplication();
    EvmPlot plot;
    plot.resize(QSize(400, 500));
    plot.texts().setTextRTF(TextBox::Header, fuzz::textOf(data, size));
    requireWellFormed(pictureBytes(plot, PictureFormat::Svg));
    requireRecords(pictureBytes(plot, PictureFormat::Emf));
    return 0;
}
