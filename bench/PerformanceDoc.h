#pragma once
// The measured part of docs/performance.md: the machine's description and
// the table, written between two marker lines so that the prose around
// them is kept. A file without the markers gets them appended.

#include <string>

namespace bench {

// lscpu's summary lines, uname, the Qt version the program runs with and
// the compiler it was built with, as a Markdown code block.
std::string machineDescription();
// Replaces what lies between the markers in `path` by `body`. False when
// the file cannot be written.
bool writeMeasuredSection(std::string const &path, std::string const &body);

} // namespace bench
