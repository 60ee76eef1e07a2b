// The records of Windows, with the directory entry that the program's own directory calls fill in.
#include <winsock2.h>
#include <ws2tcpip.h>

#include <cstddef>
#include <ctime>
#include <iterator>

#include "frontend/typetable.h"

namespace tarn {

#define FIELD(record, field) \
  { #field, sizeof(record::field), offsetof(record, field) }

static constexpr TypeField addrinfofields[] = {
    FIELD(addrinfo, ai_flags),     FIELD(addrinfo, ai_family),  FIELD(addrinfo, ai_socktype),
    FIELD(addrinfo, ai_protocol),  FIELD(addrinfo, ai_addrlen), FIELD(addrinfo, ai_addr),
    FIELD(addrinfo, ai_canonname), FIELD(addrinfo, ai_next),
};

static constexpr TypeField direntfields[] = {
    {"d_ino", 4, 0},     {"d_off", 4, 4},   {"d_reclen", 2, 8},
    {"d_namlen", 8, 16}, {"d_type", 4, 24}, {"d_name", 261, 28},
};

static constexpr TypeRecord records[] = {
    {"addrinfo", sizeof(addrinfo), addrinfofields, std::size(addrinfofields)},
    {"dirent", 296, direntfields, std::size(direntfields)},
    {"fd_set", sizeof(fd_set), nullptr, 0},
    {"size_t", sizeof(size_t), nullptr, 0},
    {"socklen_t", sizeof(socklen_t), nullptr, 0},
    {"time_t", sizeof(time_t), nullptr, 0},
};

TypeRecords typerecords() { return {records, std::size(records)}; }

}  // namespace tarn
