// The tables of the host's built-in groups, one per theme.
#pragma once

#include "shell/builtins/builtin_support.hpp"

#include <span>

namespace orrery::shell::builtins {

/// size, numel, isempty, class, isequal.
std::span<const BuiltinEntry> valueBuiltins();
/// zeros, ones, cell, double, single, int8..uint64, logical, Inf, NaN, pi, true, false.
std::span<const BuiltinEntry> constructionBuiltins();
/// disp, fprintf, strcmp, strcmpi.
std::span<const BuiltinEntry> textBuiltins();
/// char, string.
std::span<const BuiltinEntry> textConversionBuiltins();
/// struct, fieldnames, isfield, properties.
std::span<const BuiltinEntry> structBuiltins();
/// abs, isnan, isinf, any, all, sum, mean, find.
std::span<const BuiltinEntry> mathBuiltins();
/// min, max.
std::span<const BuiltinEntry> extremaBuiltins();
/// sort.
std::span<const BuiltinEntry> sortBuiltins();
/// now, datenum, datevec, tic, toc.
std::span<const BuiltinEntry> timeBuiltins();
/// fileread, delete, exist, tempname.
std::span<const BuiltinEntry> fileBuiltins();
/// pwd, cd, mkdir.
std::span<const BuiltinEntry> folderBuiltins();
/// message, getString.
std::span<const BuiltinEntry> messageBuiltins();
/// floor, ceil, round, sqrt, exp, log, mod, rem.
std::span<const BuiltinEntry> elementaryBuiltins();
/// length, isa, ischar, isnumeric, iscell, isstruct.
std::span<const BuiltinEntry> kindBuiltins();
/// num2str, upper, lower, strrep, strtrim, strsplit, strjoin.
std::span<const BuiltinEntry> textEditBuiltins();

}  // namespace orrery::shell::builtins
