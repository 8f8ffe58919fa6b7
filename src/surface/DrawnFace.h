// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;

namespace tarsil {

/// The font family to draw a name with. Older programs name the part of a family for one script
/// ("Arial Greek", "Times New Roman CE", "Arial (Hebrew)"); no machine has such fonts, but the
/// family itself contains the script. Other names, and names of installed fonts, are returned
/// unchanged.
QString drawnFace(const QString& family);

} // namespace tarsil
