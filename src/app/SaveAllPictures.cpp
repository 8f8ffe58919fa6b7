// SPDX-License-Identifier: Apache-2.0
#include "app/SaveAllPictures.h"

#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/PlotList.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureFiles.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

namespace tarsil {

namespace {

constexpr const char* allPicturesTitle = "Save All Pics";
constexpr std::string_view savingPictures = "Save All Pics. Please Wait ...";

std::optional<PictureFormat> askFormat(UserInterface& user)
{
    std::vector<std::string> formats;
    formats.reserve(pictureTraits.size());
    for (const PictureTraits& traits : pictureTraits)
        formats.push_back(std::string(traits.name) + " (" + std::string(traits.extension) + ")");
    const std::optional<std::size_t> index =
        user.askChoice("Format of the pictures:", allPicturesTitle, formats);
    return index ? std::optional(pictureTraits.at(*index).format) : std::nullopt;
}

/// Whether none of the files exists, or the user allows to replace them.
bool mayReplaceAll(const std::vector<std::string>& paths, UserInterface& user)
{
    std::vector<std::string> existing;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(existing), fileExists);
    return existing.empty()
        || user.confirm("These files already exist. Do you want to replace them?\n"
                            + shortList(existing, mostFileLines),
                        allPicturesTitle);
}

std::vector<std::string> picturePathsOf(const std::vector<EvmPlot*>& plots,
                                        const std::string& folder, PictureFormat format)
{
    std::vector<std::string> captions;
    captions.reserve(plots.size());
    for (const EvmPlot* const plot : plots)
        captions.push_back(plot->properties().Caption().toStdString());
    std::vector<std::string> paths = pictureFileNames(captions, format);
    for (std::string& path : paths)
        path.insert(0, folder + "/");
    return paths;
}

/// Returns the number of pictures written before a stop.
std::size_t writeAll(const PlotList& list, const std::vector<std::string>& paths,
                     PictureFormat format, UserInterface& user)
{
    const BusyStatus status(user, savingPictures);
    const std::vector<EvmPlot*> plots = list.all();
    PictureFiles files;
    std::size_t count = 0;
    do {
        const EvmPlot& plot = *plots[count];
        try {
            files.add(plot, paths[count], format, list.pictureSettings());
        } catch (const RunTimeError& error) {
            throw error.at("plot \"" + plot.properties().Caption().toStdString() + "\"");
        }
        ++count;
    } while (user.showProgress(count, plots.size()) && count < plots.size());
    files.commit();
    return count;
}

std::string countText(std::size_t written, std::size_t all)
{
    if (written < all)
        return "Stopped: " + std::to_string(written) + " of " + std::to_string(all)
            + " pictures are";
    return std::to_string(all) + (all == 1 ? " picture is" : " pictures are");
}

} // namespace

void saveAllPictures(const PlotList& list, const std::string& folder, UserInterface& user)
{
    const std::optional<PictureFormat> format = askFormat(user);
    const std::optional<std::string> chosen = format ? user.askFolder(folder) : std::nullopt;
    if (!chosen)
        return;
    const std::vector<EvmPlot*> plots = list.all();
    const std::vector<std::string> paths = picturePathsOf(plots, *chosen, *format);
    if (!mayReplaceAll(paths, user))
        return;
    const std::size_t written = writeAll(list, paths, *format, user);
    user.showNote(countText(written, plots.size()) + " in " + wholePath(*chosen) + " ("
                  + std::string(pictureTraitsOf(*format).name) + ")");
}

} // namespace tarsil
