// The picture of a plot as an Enhanced Metafile.

#include "emf/EmfSink.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

namespace tarsil {

void EvmPlot::ExportPic(const QString& fileName) const
{
    WriteEmfPicture(fileName);
}

void EvmPlot::WriteEmfPicture(const QString& fileName) const
{
    EmfFile file(fileName.toStdString());
    writeMetafile(*this, file);
    file.commit();
}

} // namespace tarsil
