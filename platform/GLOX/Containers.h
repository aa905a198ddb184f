#pragma once
// GLOX container names, mapped onto Qt's implicitly shared containers.

#include <QHash>
#include <QList>
#include <QVector>

namespace GLOX {

template <typename T>
using GList = QList<T>;

template <typename T>
using GVector = QVector<T>;

template <typename K, typename V>
using GHash = QHash<K, V>;

} // namespace GLOX
