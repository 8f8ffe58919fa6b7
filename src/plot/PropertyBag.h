// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>
#include <QString>
#include <QVariantMap>

namespace tarsil {

/// The settings of a drawn item by key.
using PropertyBag = QVariantMap;

/// The value of a key; the default when the key is absent.
template <typename Value>
Value readProperty(const PropertyBag& bag, const QString& key, const Value& defaultValue)
{
    const auto found = bag.constFind(key);
    return found == bag.constEnd() ? defaultValue : found->template value<Value>();
}

/// The keys set since the settings were last saved.
class ChangedProperties
{
public:
    void add(const QString& key) { m_keys.insert(key); }
    bool contains(const QString& key) const { return m_keys.contains(key); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    void clear() { m_keys.clear(); }

private:
    QSet<QString> m_keys;
};

} // namespace tarsil
