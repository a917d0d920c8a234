// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace cardwright::qt {

/// Several files are one text, a path list, as programs on the platform hand them over: their folder, then
/// their names, a NUL between each two. A single file is its path.
/// @{
QStringList SplitPathList(const QString& list);
/// Files of other folders than the first one's are left out.
QString JoinPathList(const QStringList& files);
/// @}

/// @name A path list as a user reads and types it: several files each in quotes, a quote in a name doubled,
/// the first one with the folder of all. Any other text is left as it is.
/// @{
QString ShownPaths(const QString& list);
QString TypedPaths(const QString& shown);
/// @}

/// Filters of the toolkit's file dialogs from "description|extensions|description|extensions", extensions
/// separated by ";": "*.txt", ".txt" and "txt" are the same, "*.*" is any file. A description without
/// extensions is left out.
QStringList NameFilters(const QString& filter);
/// The patterns of all of them, "*.txt".
QStringList NamePatterns(const QString& filter);
/// The suffix, without the point, that a name is completed by under this filter of NameFilters; "" for none.
QString SuffixOf(const QString& nameFilter);

}  // namespace cardwright::qt
