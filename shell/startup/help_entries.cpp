// The reference texts of every function the language offers: the module's
// diagnostic functions, the session commands and the host's built-ins, one
// entry per name (a numeric class's conversions share one), grouped as help
// lists them, each with what to see also.
#include "shell/startup/builtin_help.hpp"

namespace orrery::shell::startup {
namespace {

constexpr HelpEntry kEntries[] = {
    {"error", "raise an error",
     "error(msg)\tthe message msg, taken literally, with no identifier\n"
     "error(fmt, args...)\tthe message sprintf(fmt, args...), no identifier\n"
     "error(id, fmt, args...)\tthe same with the identifier id ('component:mnemonic')\n"
     "error(msgObject)\tthe catalogue message of a message object, with its identifier\n"
     "error(s)\tfrom a structure with the fields identifier, message, stack (each optional)\n"
     "error('')\tan empty message (or [], struct([])) raises nothing",
     "none", "error('orbit:lost', 'Lost contact after %d orbits.', 3)", "Errors", "lasterror, rethrow, assert, lasterr",
     ""},
    {"assert", "raise an error when a condition is false",
     "assert(cond)\tthe error ORRERY:assertion:failed when cond is false\n"
     "assert(cond, msg)\tthe message msg when cond is false\n"
     "assert(cond, id, fmt, args...)\tan error built as error(id, fmt, args...) builds it\n"
     "\tcond is a logical scalar or a scalar that converts to one; the error is\n"
     "\treported under the name assert; nothing after a true cond is examined",
     "none", "assert(moons == 2, 'mars:moons', 'Mars has 2 moons, not %d.', moons)", "Errors", "error", ""},
    {"rethrow", "raise an error described by a structure",
     "rethrow(s)\tthe error with s.identifier, s.message and s.stack (each optional);\n"
     "\twithout a stack field, the current call stack less its innermost frame\n"
     "rethrow(err)\ta caught error object raised again with its own stack",
     "none", "rethrow(struct('identifier', 'tour:crashed', 'message', 'The lander crashed.'))", "Errors",
     "error, lasterror", ""},
    {"lasterr", "the message and identifier of the last error",
     "msg = lasterr\tthe last error's message\n"
     "[msg, id] = lasterr\tits message and identifier\n"
     "lasterr(msg)\treplace the last error by msg, with no identifier\n"
     "lasterr(msg, id)\treplace it by msg with the identifier id\n"
     "lasterr('-hotlinks', ...)\tthe message with its hyperlink mark-up kept",
     "msg (char), id (char); a call that replaces the record returns the values before it", "[msg, id] = lasterr",
     "Errors", "lasterror, error", ""},
    {"lasterror", "the last error as a structure, or replace it",
     "s = lasterror\tthe last error: fields message, identifier, stack\n"
     "lasterror(s)\treplace it by the structure s (fields identifier, message, stack)\n"
     "lasterror('reset')\tclear it: empty message and identifier, empty stack",
     "s (1-by-1 struct); a call that replaces the record returns the error before it",
     "last = lasterror(); disp(last.identifier)", "Errors", "lasterr, error, rethrow", ""},
    {"warning", "issue a warning, or set and show warning states",
     "warning(msg)\tissue a warning with the message msg\n"
     "warning(id, fmt, args...)\tissue it with the identifier id and the message sprintf(fmt, args...)\n"
     "warning(msgObject)\tissue the catalogue message of a message object\n"
     "warning('')\tclear the last warning; nothing is printed\n"
     "warning on|off ID\tturn the warning ID on or off ('all': every warning, replacing the states set per ID)\n"
     "warning error ID\tmake the warning ID raise an error instead\n"
     "warning off last\tturn off the last warning printed\n"
     "warning query ID\tshow the state of ID; warning alone shows every state\n"
     "warning on|off backtrace\tshow or hide the line that issued a printed warning\n"
     "warning on|off verbose\tshow or hide the hint on how to turn a warning off\n"
     "warning(s)\trestore the states in the structure s (fields identifier, state)",
     "s = warning(...) with a state command: the states before it (fields identifier, state)\n"
     "[msg, id] = warning(id, fmt, ...): the last warning before this one",
     "s = warning('off', 'orbit:drift');   % later, warning(s) restores the state", "Warnings",
     "lastwarn, ResetLastPrintedWarning, orrery.internal.diagnostic.log.open", ""},
    {"lastwarn", "the message and identifier of the last warning",
     "msg = lastwarn\tthe last warning's message, shown or not\n"
     "[msg, id] = lastwarn\tits message and identifier\n"
     "lastwarn(msg)\treplace the last warning by msg, with no identifier\n"
     "lastwarn(msg, id)\treplace it by msg with the identifier id",
     "msg (char), id (char); a call that replaces the record returns the values before it", "[msg, id] = lastwarn",
     "Warnings", "warning", ""},
    {"ResetLastPrintedWarning", "forget the last printed warning",
     "ResetLastPrintedWarning()\tuntil the next printed warning, 'last' names none", "none",
     "ResetLastPrintedWarning(); warning query last", "Warnings", "warning", ""},
    {"orrery.internal.diagnostic.log.open", "write every issued warning to an XML log file",
     "orrery.internal.diagnostic.log.open(file)\tstart logging to file (made absolute, '.xml' added when it\n"
     "\thas no extension); a new file is created, an existing log is appended to",
     "none", "orrery.internal.diagnostic.log.open('flight.xml')", "Warning logs",
     "orrery.internal.diagnostic.log.close, orrery.internal.diagnostic.log.load", ""},
    {"orrery.internal.diagnostic.log.close", "stop writing warnings to an XML log file",
     "orrery.internal.diagnostic.log.close(file)\tstop logging to file (named as for open)", "none",
     "orrery.internal.diagnostic.log.close('flight.xml')", "Warning logs", "orrery.internal.diagnostic.log.open", ""},
    {"orrery.internal.diagnostic.log.load", "read an XML warning log back",
     "w = orrery.internal.diagnostic.log.load(file)\tthe warnings of file, in the order they were written",
     "w: 1-by-N orrery.internal.diagnostic.Warning array", "w = orrery.internal.diagnostic.log.load('flight.xml')",
     "Warning logs", "orrery.internal.diagnostic.Warning, orrery.internal.diagnostic.log.open", ""},
    {"orrery.internal.diagnostic.log.summary", "count a warning log's warnings per identifier without loading them",
     "s = orrery.internal.diagnostic.log.summary(file)\tone row per identifier, in the order of its first warning",
     "s: N-by-1 struct with identifier, count, disabled, first, last (serial day numbers) and timeline\n"
     "(how many fell into each of 16 equal parts of the log's time span)",
     "s = orrery.internal.diagnostic.log.summary('flight.xml'); s(1).count", "Warning logs",
     "orrery.internal.diagnostic.log.load", ""},
    {"orrery.internal.diagnostic.Warning", "one logged warning (the elements that load returns)",
     "w.identifier, w.message\tthe warning's identifier and message\n"
     "w.format, w.arguments\tits format and format arguments (cell)\n"
     "w.stack, w.time\twhere it was issued (file, name, line) and when (serial day number)\n"
     "w.wasDisabled\ttrue when the warning was off when issued\n"
     "a == b, a ~= b, isequal(a, b)\tcompare warnings element by element, or whole arrays\n"
     "[s, k] = sort(w)\tsort by time, then identifier; k: where each came from",
     "as listed with each form", "w(2).wasDisabled", "Warning logs", "orrery.internal.diagnostic.log.load, sort", ""},
    {"help", "help for every function",
     "help\tlist every function, grouped\n"
     "help NAME\tdescribe NAME: its forms, outputs and an example",
     "text = help(...): the text, returned instead of printed", "help lastwarn", "Session", "whos, run", ""},
    {"exit", "end the session or script",
     "exit\tend with status 0\n"
     "exit(n)\tend with status n (0 to 255)",
     "none", "exit(1)", "Session", "quit", ""},
    {"quit", "end the session or script (the same as exit)",
     "quit\tend with status 0\n"
     "quit(n)\tend with status n (0 to 255)",
     "none", "quit", "Session", "exit", ""},
    {"clear", "remove variables",
     "clear\tremove every variable of the workspace\n"
     "clear NAME ...\tremove the variables named",
     "none", "clear x y", "Session", "who, whos", ""},
    {"who", "list the variables' names",
     "who\tprint the names of the workspace's variables\n"
     "names = who\tthe names as a cell column",
     "names (cell)", "who", "Session", "whos, clear", ""},
    {"whos", "list the variables with size, bytes and class", "whos\tone row per variable: name, size, bytes, class",
     "none", "whos", "Session", "who, size, class", ""},
    {"run", "run a script file",
     "run FILE\trun FILE (or FILE.orr) in the caller's workspace\n"
     "run('FILE')\tthe same in function form",
     "none", "run setup", "Session", "exist, pwd", ""},
    {"size", "the size of an array",
     "sz = size(x)\tthe sizes as a row\n"
     "n = size(x, dim)\tthe size along dim\n"
     "[r, c, ...] = size(x)\tone size per output, the last one the product of the rest",
     "sz (double row), or one double per output", "[rows, cols] = size(zeros(2, 3))", "Values", "numel, length", ""},
    {"numel", "the number of elements", "n = numel(x)\tthe product of the sizes", "n (double)", "numel(zeros(2, 3))",
     "Values", "size, length", ""},
    {"length", "the largest dimension", "n = length(x)\tthe largest size, or 0 for an empty array", "n (double)",
     "length(zeros(3, 7))", "Values", "size, numel", ""},
    {"isempty", "whether an array has no elements", "tf = isempty(x)\ttrue when some size is 0", "tf (logical)",
     "isempty([])", "Values", "numel", ""},
    {"isscalar", "whether an array has exactly one element", "tf = isscalar(x)\ttrue when numel(x) is 1",
     "tf (logical)", "isscalar(5)", "Values", "isempty, numel", ""},
    {"class", "the class of a value", "name = class(x)\tits class name ('double', 'char', 'cell', ...)", "name (char)",
     "class(int8(1))", "Values", "isa", ""},
    {"isa", "whether a value is of a class or group",
     "tf = isa(x, name)\tname: a class, or 'numeric', 'float', 'integer'", "tf (logical)", "isa(int8(1), 'integer')",
     "Values", "class, isnumeric", ""},
    {"ischar", "whether a value is a char array", "tf = ischar(x)", "tf (logical)", "ischar('abc')", "Values",
     "isa, isnumeric", ""},
    {"isnumeric", "whether a value is a numeric array",
     "tf = isnumeric(x)\ttrue for double, single and the integer classes", "tf (logical)", "isnumeric(3)", "Values",
     "isa, ischar", ""},
    {"iscell", "whether a value is a cell array", "tf = iscell(x)", "tf (logical)", "iscell({1})", "Values",
     "isa, isstruct", ""},
    {"isstruct", "whether a value is a struct array", "tf = isstruct(x)", "tf (logical)", "isstruct(struct('a', 1))",
     "Values", "isa, iscell", ""},
    {"isequal", "whether values are equal",
     "tf = isequal(a, b, ...)\tsame size and equal elements, whatever the numeric class", "tf (logical)",
     "isequal([1 2], [1 2])", "Values", "strcmp", ""},
    {"zeros", "an array of zeros",
     "z = zeros(n)\tn-by-n\n"
     "z = zeros(r, c, ...)\tof that size\n"
     "z = zeros(..., class)\tof that numeric class",
     "z (numeric)", "zeros(2, 3)", "Construction", "ones, cell", ""},
    {"ones", "an array of ones",
     "o = ones(n)\tn-by-n\n"
     "o = ones(r, c, ...)\tof that size\n"
     "o = ones(..., class)\tof that numeric class",
     "o (numeric)", "ones(1, 4)", "Construction", "zeros", ""},
    {"cell", "a cell array of empty cells",
     "c = cell(n)\tn-by-n\n"
     "c = cell(r, c, ...)\tof that size",
     "c (cell)", "c = cell(1, 3)", "Construction", "struct, iscell", ""},
    {"true", "logical true",
     "t = true\ta logical 1\n"
     "t = true(r, c, ...)\tan array of them",
     "t (logical)", "true(2)", "Construction", "false, logical", ""},
    {"false", "logical false",
     "f = false\ta logical 0\n"
     "f = false(r, c, ...)\tan array of them",
     "f (logical)", "false(1, 3)", "Construction", "true, logical", ""},
    {"pi", "the number pi", "p = pi\t3.14159...", "p (double)", "2 * pi", "Construction", "exp", ""},
    {"Inf", "infinity",
     "x = Inf\tpositive infinity\n"
     "x = Inf(r, c, ...)\tan array of it",
     "x (double)", "-Inf", "Construction", "NaN, isinf", "inf"},
    {"NaN", "not a number",
     "x = NaN\tthe value no comparison holds for\n"
     "x = NaN(r, c, ...)\tan array of it",
     "x (double)", "isnan(NaN)", "Construction", "Inf, isnan", "nan"},
    {"double", "convert to a numeric class",
     "y = double(x)\tto double; single, int8 ... uint64 alike (integers round and saturate)", "y (of that class)",
     "int8(200)", "Construction", "class, logical", "single, int8, int16, int32, int64, uint8, uint16, uint32, uint64"},
    {"logical", "convert to logical", "tf = logical(x)\tnonzero elements become true; NaN is refused", "tf (logical)",
     "logical([0 2])", "Construction", "true, double", ""},
    {"char", "convert to a char array", "c = char(x)\tnumbers as character codes; a string as its characters",
     "c (char)", "char(72)", "Construction", "string, num2str", ""},
    {"string", "convert to a string array", "s = string(x)\ttext as strings; numbers as their text", "s (string)",
     "string('abc')", "Construction", "char", ""},
    {"abs", "absolute value", "y = abs(x)\telement by element", "y (same class)", "abs([-1 2])", "Math", "sqrt, round",
     ""},
    {"floor", "round toward minus infinity", "y = floor(x)\telement by element, the class kept", "y (same class)",
     "floor(-2.5)", "Math", "ceil, round", ""},
    {"ceil", "round toward plus infinity", "y = ceil(x)\telement by element, the class kept", "y (same class)",
     "ceil(2.1)", "Math", "floor, round", ""},
    {"round", "round to the nearest integer", "y = round(x)\thalves away from zero, element by element",
     "y (same class)", "round([2.5 -2.5])", "Math", "floor, ceil", ""},
    {"sqrt", "square root", "y = sqrt(x)\telement by element; negative numbers are refused", "y (double or single)",
     "sqrt(2)", "Math", "exp, abs", ""},
    {"exp", "exponential", "y = exp(x)\te to the power of each element", "y (double or single)", "exp(1)", "Math",
     "log, sqrt", ""},
    {"log", "natural logarithm", "y = log(x)\telement by element; negative numbers are refused", "y (double or single)",
     "log(exp(2))", "Math", "exp", ""},
    {"mod", "remainder after division, with the divisor's sign",
     "r = mod(a, b)\telement by element, a scalar pairing with every element; mod(a, 0) is a", "r (numeric)",
     "mod(-7, 3)", "Math", "rem, floor", ""},
    {"rem", "remainder after division, with the dividend's sign",
     "r = rem(a, b)\telement by element, a scalar pairing with every element; rem(a, 0) is NaN", "r (numeric)",
     "rem(-7, 3)", "Math", "mod", ""},
    {"sum", "sum of elements",
     "s = sum(x)\talong the first dimension that is not 1\n"
     "s = sum(x, dim)\talong dim",
     "s (numeric)", "sum([1 2; 3 4])", "Math", "mean, any", ""},
    {"mean", "average of elements",
     "m = mean(x)\talong the first dimension that is not 1\n"
     "m = mean(x, dim)\talong dim",
     "m (double or single)", "mean([1 2 3 4])", "Math", "sum", ""},
    {"any", "whether any element is nonzero",
     "tf = any(x)\talong the first dimension that is not 1\n"
     "tf = any(x, dim)\talong dim",
     "tf (logical)", "any([0 0 1])", "Math", "all, find", ""},
    {"all", "whether every element is nonzero",
     "tf = all(x)\talong the first dimension that is not 1\n"
     "tf = all(x, dim)\talong dim",
     "tf (logical)", "all([1 1 0])", "Math", "any", ""},
    {"min", "smallest elements",
     "m = min(x)\talong the first dimension that is not 1\n"
     "[m, k] = min(x, [], dim)\talong dim, with where each was\n"
     "m = min(a, b)\telement by element",
     "m, k (double)", "min([3 1 2])", "Math", "max, sort", ""},
    {"max", "largest elements",
     "m = max(x)\talong the first dimension that is not 1\n"
     "[m, k] = max(x, [], dim)\talong dim, with where each was\n"
     "m = max(a, b)\telement by element",
     "m, k (double)", "max([3 1 2])", "Math", "min, sort", ""},
    {"sort", "sort elements",
     "s = sort(x)\tascending, along the first dimension that is not 1\n"
     "[s, k] = sort(x, dim, 'descend')\tand where each came from",
     "s, k", "sort([3 1 2], 'descend')", "Math", "min, max", ""},
    {"find", "where the nonzero elements are",
     "k = find(x)\ttheir linear indices, a row for a row\n"
     "k = find(x, n)\tthe first n",
     "k (double)", "find([0 1 0 1])", "Math", "any", ""},
    {"isnan", "which elements are NaN", "tf = isnan(x)", "tf (logical)", "isnan([1 NaN])", "Math", "NaN, isinf", ""},
    {"isinf", "which elements are infinite", "tf = isinf(x)", "tf (logical)", "isinf([1 Inf])", "Math", "Inf, isnan",
     ""},
    {"disp", "show a value", "disp(x)\tthe value without its name", "none", "disp('hello')", "Text", "fprintf, num2str",
     ""},
    {"fprintf", "write formatted text",
     "fprintf(fmt, args...)\tto the console\n"
     "fprintf(fid, fmt, args...)\tfid 1 is standard output, 2 standard error",
     "n (bytes written), when asked for", "fprintf('%d moons\\n', 2)", "Text", "sprintf, disp", ""},
    {"sprintf", "format text",
     "s = sprintf(fmt, args...)\tthe format applied to the arguments, recycled while they last", "s (char)",
     "sprintf('%5.2f', pi)", "Text", "fprintf, num2str", ""},
    {"num2str", "a number as text",
     "s = num2str(x)\twhole numbers in full, others with four decimals\n"
     "s = num2str(x, digits)\twith that many significant digits",
     "s (char)", "num2str(pi)", "Text", "sprintf, disp", ""},
    {"upper", "text in upper case", "t = upper(s)\tchar arrays and strings", "t (same class)", "upper('abc')", "Text",
     "lower", ""},
    {"lower", "text in lower case", "t = lower(s)\tchar arrays and strings", "t (same class)", "lower('ABC')", "Text",
     "upper", ""},
    {"strrep", "replace text", "t = strrep(s, old, new)\tevery occurrence of old, overlapping ones too",
     "t (same class as s)", "strrep('a-b', '-', '+')", "Text", "strsplit", ""},
    {"strtrim", "remove leading and trailing blanks", "t = strtrim(s)\ta text, or each text of a cell array", "t",
     "strtrim('  x  ')", "Text", "strsplit", ""},
    {"strsplit", "split text into parts",
     "c = strsplit(s)\tat runs of blanks\n"
     "c = strsplit(s, delimiter)\tat runs of the delimiter",
     "c (1-by-N cell of char rows)", "strsplit('a,b', ',')", "Text", "strjoin, strtrim", ""},
    {"strjoin", "join text parts",
     "s = strjoin(c)\tthe texts of the cell c, a blank between each\n"
     "s = strjoin(c, delimiter)\twith the delimiter between each",
     "s (char)", "strjoin({'a', 'b'}, ', ')", "Text", "strsplit", ""},
    {"strcmp", "whether texts are equal", "tf = strcmp(a, b)\ttexts, or cell arrays element by element", "tf (logical)",
     "strcmp('a', 'a')", "Text", "strcmpi, isequal", ""},
    {"strcmpi", "whether texts are equal, ignoring case", "tf = strcmpi(a, b)", "tf (logical)", "strcmpi('A', 'a')",
     "Text", "strcmp", ""},
    {"struct", "a struct array",
     "s = struct(name, value, ...)\tfields with values (a cell value makes an array)\n"
     "s = struct()\ta struct with no fields",
     "s (struct)", "s = struct('a', 1, 'b', 'x')", "Structs and objects", "fieldnames, isfield", ""},
    {"fieldnames", "the field names of a struct", "names = fieldnames(s)\ta cell column; an object's properties alike",
     "names (cell)", "fieldnames(struct('a', 1))", "Structs and objects", "isfield, struct", ""},
    {"isfield", "whether a struct has fields", "tf = isfield(s, name)\tname: a text or a cell of texts", "tf (logical)",
     "isfield(struct('a', 1), 'a')", "Structs and objects", "fieldnames", ""},
    {"properties", "the properties of an object or class", "names = properties(x)\ta cell column", "names (cell)",
     "properties(w)", "Structs and objects", "fieldnames", ""},
    {"now", "the current date and time", "t = now\tas a serial day number", "t (double)", "datevec(now)", "Time",
     "datenum, datevec", ""},
    {"datenum", "a date as a serial day number",
     "t = datenum(y, mo, d, h, mi, s)\tfrom its parts\n"
     "t = datenum(v)\tfrom date vectors",
     "t (double)", "datenum(2024, 3, 5)", "Time", "datevec, now", ""},
    {"datevec", "a serial day number as a date vector", "v = datevec(t)\t[year month day hour minute second]",
     "v (double)", "datevec(now)", "Time", "datenum", ""},
    {"tic", "start a stopwatch", "tic\tstart timing", "none", "tic; pause_free_work; toc", "Time", "toc", ""},
    {"toc", "read the stopwatch", "t = toc\tseconds since the last tic", "t (double)", "tic; toc", "Time", "tic", ""},
    {"fileread", "the text of a file", "t = fileread(name)\tthe file's UTF-8 text", "t (char)", "fileread('notes.txt')",
     "Files", "exist, delete", ""},
    {"exist", "whether a name exists", "k = exist(name)\t1 variable, 2 file, 5 built-in, 7 folder, 0 none",
     "k (double)", "exist('notes.txt')", "Files", "fileread", ""},
    {"delete", "delete files", "delete(name, ...)\tremove the files named", "none", "delete('old.xml')", "Files",
     "exist, tempname", ""},
    {"tempname", "a name for a temporary file", "name = tempname\tin the temporary folder, not yet taken",
     "name (char)", "log = [tempname '.xml']", "Files", "delete", ""},
    {"pwd", "the current folder", "p = pwd", "p (char)", "pwd", "Files", "cd", ""},
    {"cd", "change the current folder",
     "cd(folder)\tgo there\n"
     "p = cd\tthe current folder",
     "p (char), when asked for", "cd('..')", "Files", "pwd, mkdir", ""},
    {"mkdir", "make a folder", "mkdir(name)\tcreate the folder", "none", "mkdir('results')", "Files", "cd", ""},
    {"message", "a catalogue message object", "m = message(id, args...)\tthe message of the catalogue identifier id",
     "m (message object)", "getString(message('ORRERY:undefinedFunction', 'f'))", "Messages", "getString, error", ""},
    {"getString", "the text of a message object", "t = getString(m)\tin the current language", "t (char)",
     "getString(message('ORRERY:undefinedFunction', 'f'))", "Messages", "message", ""},
};

}  // namespace

std::span<const HelpEntry> helpEntries() { return kEntries; }

}  // namespace orrery::shell::startup
