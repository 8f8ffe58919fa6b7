#pragma once

#include <QSet>
#include <QString>
#include <QVariantMap>

namespace tarsil {

/// The settings of a control by their fixed keys, as they are kept and handed from one control to
/// another.
using PropertyBag = QVariantMap;

/// What of a bag a control holds; a key that is absent keeps its default.
template <typename Value>
Value readProperty(const PropertyBag& bag, const QString& key, const Value& defaultValue)
{
    const auto place = bag.constFind(key);
    return place == bag.constEnd() ? defaultValue : place->template value<Value>();
}

/// The keys that were set since the settings were last saved.
class ChangedProperties
{
public:
    void mark(const QString& key) { m_keys.insert(key); }
    bool contains(const QString& key) const { return m_keys.contains(key); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    void clear() { m_keys.clear(); }

private:
    QSet<QString> m_keys;
};

} // namespace tarsil
