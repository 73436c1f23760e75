// SPDX-License-Identifier: GPL-3.0-or-later
/// File operations inside an open folder: by its handle and not by its path, and never through a link.
#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp::folder
{

/// Opens @p name in @p parent, makes it first if there is nothing, for the user alone (0700). A link or file of that
/// name is removed, never followed. @return a handle with an exclusive lock on it; -1 when the name belongs to another
/// user, cannot be had, or is locked by a running program
int openPrivate(int parent, const std::string& name);
/// Opens and locks @p name if it is a folder of this user; makes and removes nothing. -1 when not.
int openExisting(int parent, const std::string& name);
/// Whether @p parent still has the open folder @p handle under @p name.
bool isStillThere(int parent, const std::string& name, int handle);

/// Makes @p name in @p parent for the user alone and opens it; what stands there is opened. -1 when that cannot be.
/// Not locked.
int openInner(int parent, const std::string& name);
/// The same without making it.
int openExistingInner(int parent, const std::string& name);

/// The names in a folder, in no order.
std::vector<std::string> names(int handle);
/// Files, links (not their targets) and folders with their contents, but for those that @p kept says yes to.
void removeContents(int handle, const std::function<bool(const std::string&)>& kept = {});
void removeWithContents(int parent, const std::string& name);

/// Creates the file, for the user alone. @return false, with the reason in @p error and errno and no file left, when
/// not all bytes could be written
bool writeFile(int handle, const std::string& name, std::span<const std::uint8_t> bytes, std::string& error);
/// The same beside its place, which it then takes: a failure leaves what was there.
bool replaceFile(int handle, const std::string& name, std::span<const std::uint8_t> bytes, std::string& error);
std::optional<std::vector<std::uint8_t>> readFile(int handle, const std::string& name, std::uint64_t limit);
bool isFile(int handle, const std::string& name);

} // namespace zp::folder
