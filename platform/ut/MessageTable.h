#pragma once
// ut_message_table: one table of messages for one facility, in the layout
// the host's catalogue takes: a count, the facility, and three arrays of
// that many entries, index for index: codes, ids and texts. A code carries
// the facility in its upper 16 bits.

namespace ut {

struct MessageTable {
    int count;
    int facility;
    int const *codes;
    char const *const *ids;
    char const *const *texts;
};

} // namespace ut

using ut_message_table = ut::MessageTable;
