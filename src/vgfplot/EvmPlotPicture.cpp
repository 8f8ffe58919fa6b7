// The picture of a plot as an Enhanced Metafile.

#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"
#include "vgfplot/EvmPlot.h"

namespace tarsil {

namespace {

/// The separators are the two characters backslash and zero, as every such picture has had them.
const QString description = QStringLiteral("Tarsil\\0Created by Kestrin\\0\\0");

void writeMetafile(EvmPlot& plot, EmfSink& sink)
{
    MetafileContext context(sink, description);
    plot.Draw(context);
    context.close();
}

} // namespace

void EvmPlot::ExportPic(const QString& fileName)
{
    WriteEmfPicture(fileName);
}

void EvmPlot::WriteEmfPicture(const QString& fileName)
{
    EmfFile file(fileName.toStdString());
    writeMetafile(*this, file);
    file.commit();
}

QByteArray EvmPlot::emfPicture()
{
    EmfMemory memory;
    writeMetafile(*this, memory);
    return QByteArray::fromStdString(memory.bytes());
}

} // namespace tarsil
