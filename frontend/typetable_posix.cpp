// The records of a POSIX system, by what its own headers say.
#include <dirent.h>
#include <netdb.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <sys/types.h>

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
    FIELD(dirent, d_ino),  FIELD(dirent, d_off),  FIELD(dirent, d_reclen),
    FIELD(dirent, d_type), FIELD(dirent, d_name),
};

static constexpr TypeRecord records[] = {
    {"addrinfo", sizeof(addrinfo), addrinfofields, std::size(addrinfofields)},
    {"dirent", sizeof(dirent), direntfields, std::size(direntfields)},
    {"fd_set", sizeof(fd_set), nullptr, 0},
    {"size_t", sizeof(size_t), nullptr, 0},
    {"socklen_t", sizeof(socklen_t), nullptr, 0},
    {"time_t", sizeof(time_t), nullptr, 0},
};

TypeRecords typerecords() { return {records, std::size(records)}; }

}  // namespace tarn
