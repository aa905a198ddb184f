#pragma once
// The entry points a script host looks up by name, with C linkage.

#include <string>

namespace GLOX {
// What went wrong in initialize_vor, empty when nothing did.
struct ErrorHolder {
    std::string message;
};
} // namespace GLOX

extern "C" {

// The header of the host-function table: the buffer QueryTVFcns_vor gives,
// two stamps and the facility number 0x6b.
struct HostFunctionTableHeader {
    char const *functions;
    unsigned int stamp1;
    unsigned int stamp2;
    unsigned int facility;
};

__attribute__((visibility("default"))) void initialize_vor(GLOX::ErrorHolder &errors);
__attribute__((visibility("default"))) void TVInitialize_vor();
__attribute__((visibility("default"))) void terminate_vor();
__attribute__((visibility("default"))) void TVTerminate_vor();
__attribute__((visibility("default"))) HostFunctionTableHeader const *QueryTVFcnTable_vor();
__attribute__((visibility("default"))) char const *QueryTVFcns_vor();
}
