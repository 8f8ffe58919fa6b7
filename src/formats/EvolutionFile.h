// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

namespace tarsil {

class EVM;

/// Fills an evolution from its file; `Folder` and `FileName` must be set. The name selects the
/// format (`findFormat`); for an unknown format the evolution stays empty. Errors: those of reading
/// a file; 13 or 6 for a field that is not a number, 9 for a row with too few fields, 62 for a file
/// that ends before its results, 457 for a repeated key, each with file, line and text. After an
/// error the evolution is unchanged.
void Contruct(EVM& evolution);

/// Fills an evolution from a file in the semicolon-separated layout, whatever its name. Errors: as
/// for `Contruct`.
void contructFromSemicolonFile(EVM& evolution);

/// Writes an evolution in fixed columns to `path`, whole or not at all. Errors: those of `evmText`
/// and of writing a file.
void PrintEVM(const EVM& evolution, std::string_view path);

/// Opens an evolution by its path, which may be relative. Errors: those of `Contruct`.
std::unique_ptr<EVM> openEvolution(std::string_view path);

} // namespace tarsil
