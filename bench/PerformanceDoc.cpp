#include "PerformanceDoc.h"

#include <QtGlobal>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <sys/utsname.h>

namespace bench {

namespace {
char const *const BEGIN = "<!-- measured: begin (written by scripts/bench.sh) -->";
char const *const END = "<!-- measured: end -->";

std::string commandOutput(char const *command)
{
    std::string out;
    if (FILE *p = popen(command, "r")) {
        char buf[512];
        while (fgets(buf, sizeof buf, p)) out += buf;
        pclose(p);
    }
    return out;
}
} // namespace

std::string machineDescription()
{
    std::ostringstream out;
    out << "```\n"
        << commandOutput("lscpu 2>/dev/null | grep -E '^(Architecture|CPU\\(s\\)|Model name|Thread|Core|Socket|CPU max "
                         "MHz|L1d|L2|L3|Hypervisor)'");
    struct utsname u;
    if (uname(&u) == 0) out << "uname: " << u.sysname << " " << u.release << " " << u.version << " " << u.machine << "\n";
    out << "Memory: " << commandOutput("free -h | awk '/^Mem:/ {print $2}'");
    out << "Qt: " << qVersion() << " (built against " << QT_VERSION_STR << ")\n"
        << "Compiler: " << __VERSION__ << ", -O2 (RelWithDebInfo)\n"
        << "```\n";
    return out.str();
}

bool writeMeasuredSection(std::string const &path, std::string const &body)
{
    std::string text;
    {
        std::ifstream in(path);
        std::stringstream buf;
        buf << in.rdbuf();
        text = buf.str();
    }
    size_t b = text.find(BEGIN), e = text.find(END);
    std::string section = std::string(BEGIN) + "\n" + body + END;
    if (b == std::string::npos || e == std::string::npos || e < b)
        text += (text.empty() ? "" : "\n") + section + "\n";
    else
        text.replace(b, e + std::string(END).size() - b, section);
    std::ofstream out(path);
    out << text;
    return bool(out);
}

} // namespace bench
