// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/AtomicFile.h"
#include "vgfplot/PictureWriter.h"

#include <list>
#include <string>
#include <vector>

namespace tarsil {

/// The names of the files of several plots by their captions, with the extension of the format.
/// Characters that some system does not accept in a name become "_"; a name that another plot
/// already has, in any case, gets "_2", "_3" and so on.
std::vector<std::string> pictureFileNames(const std::vector<std::string>& captions,
                                          PictureFormat format);

/// Writes several pictures. No file exists or changes before `commit`, so that a failure of one
/// picture leaves nothing behind.
class PictureFiles
{
public:
    /// Draws a picture and writes it beside its later file. Errors: those of `pictureBytes` and of
    /// writing a file.
    void add(const DrawnPicture& picture, const std::string& path, PictureFormat format,
             const PictureSettings& settings = {});

    /// Puts all files in place. If that fails for one, which is rare, those before it exist.
    void commit();

private:
    std::list<AtomicFile> m_files;
};

} // namespace tarsil
