// SPDX-License-Identifier: Apache-2.0
#include "surface/DrawnFace.h"

#include <QFontDatabase>
#include <QString>

#include <array>

namespace tarsil {

QString drawnFace(const QString& family)
{
    constexpr std::array<QStringView, 9> scripts = {u" Baltic",   u" CE",       u" Cyr",
                                                    u" Greek",    u" Tur",      u" (Thai)",
                                                    u" (Arabic)", u" (Hebrew)", u" (Vietnamese)"};
    for (const QStringView script : scripts) {
        const bool isScriptOfFace =
            family.size() > script.size() && family.endsWith(script, Qt::CaseInsensitive);
        if (isScriptOfFace && !QFontDatabase::hasFamily(family))
            return family.chopped(script.size()).trimmed();
    }
    return family;
}

} // namespace tarsil
