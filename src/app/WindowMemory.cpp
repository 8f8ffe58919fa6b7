// SPDX-License-Identifier: Apache-2.0
#include "app/WindowMemory.h"

#include "options/OptionsStore.h"

#include <QWidget>

namespace tarsil {

void restoreWindow(QWidget& window, const OptionsStore& store)
{
    for (const RememberedPair& pair : store.pairsIfReadable(remembered::windows)) {
        if (pair.key == window.objectName())
            window.restoreGeometry(QByteArray::fromBase64(pair.value.toLatin1()));
    }
}

void keepWindow(const QWidget& window, const OptionsStore& store)
{
    const QString geometry = QString::fromLatin1(window.saveGeometry().toBase64());
    store.rememberQuietly(remembered::windows, {{window.objectName(), geometry}});
}

} // namespace tarsil
