// The rows of the sockets and the directories: the calls of net.h and dirs.h as builtins.
#pragma once

#include "host/dirs.h"
#include "host/net.h"
#include "host/wrap.h"

namespace tarn {

using AddressFn = int64_t(int64_t, const void*, int64_t);  // socket, address, its length
using PeerFn = int64_t(int64_t, void*, void*);             // socket, address to, length to
using PairFn = int64_t(int64_t, int);

inline constexpr BuiltinFn hostsocket = call<"nnn", 'i', int64_t(int, int, int), netsocket>;
inline constexpr BuiltinFn hostbind = call<"nnn", 'i', AddressFn, netbind>;
inline constexpr BuiltinFn hostconnect = call<"nnn", 'i', AddressFn, netconnect>;
inline constexpr BuiltinFn hostaccept = call<"nnn", 'i', PeerFn, netaccept>;
inline constexpr BuiltinFn hostgetpeername = call<"nnn", 'i', PeerFn, netgetpeername>;
inline constexpr BuiltinFn hostlisten = call<"nn", 'i', PairFn, netlisten>;
inline constexpr BuiltinFn hostshutdown = call<"nn", 'i', PairFn, netshutdown>;
inline constexpr BuiltinFn hostclosesocket = call<"n", 'i', int64_t(int64_t), netclosesocket>;
inline constexpr BuiltinFn hostsetsockopt =
    call<"nnnnn", 'i', int64_t(int64_t, int, int, const void*, int64_t), netsetsockopt>;

inline constexpr BuiltinFn hostsend =
    call<"nsnn", 'i', int64_t(int64_t, const void*, int64_t, int), netsend>;
inline constexpr BuiltinFn hostrecv =
    call<"nnnn", 'i', int64_t(int64_t, void*, int64_t, int), netrecv>;
inline constexpr BuiltinFn hostsendto =
    call<"nsnnnn", 'i', int64_t(int64_t, const void*, int64_t, int, const void*, int64_t),
         netsendto>;
inline constexpr BuiltinFn hostrecvfrom =
    call<"nnnnnn", 'i', int64_t(int64_t, void*, int64_t, int, void*, void*), netrecvfrom>;

inline constexpr BuiltinFn hostgetaddrinfo =
    call<"nnnn", 'i', int64_t(const char*, const char*, const void*, void*), netgetaddrinfo>;
inline constexpr BuiltinFn hostfreeaddrinfo = call<"n", 'I', void(void*), netfreeaddrinfo>;
inline constexpr BuiltinFn hostgai_strerror = call<"n", 'i', const char*(int), netgai_strerror>;
inline constexpr BuiltinFn hostgetnameinfo =
    call<"nnnnnnn", 'i', int64_t(const void*, int64_t, char*, int64_t, char*, int64_t, int),
         netgetnameinfo>;
inline constexpr BuiltinFn hostgethostname =
    call<"nn", 'i', int64_t(char*, int64_t), netgethostname>;
inline constexpr BuiltinFn hostinet_ntop =
    call<"wnnn", 'i', const char*(int, const void*, char*, int64_t), netinet_ntop>;
inline constexpr BuiltinFn hostinet_pton =
    call<"nnn", 'i', int64_t(int, const char*, void*), netinet_pton>;

inline constexpr BuiltinFn hosthtonl = call<"n", 'i', int64_t(uint32_t), nethtonl>;
inline constexpr BuiltinFn hosthtons = call<"n", 'i', int64_t(uint16_t), nethtons>;
inline constexpr BuiltinFn hostntohl = call<"n", 'u', uint64_t(uint32_t), netntohl>;
inline constexpr BuiltinFn hostntohs = call<"n", 'u', uint64_t(uint16_t), netntohs>;

// On purpose: `fd_set` reads two arguments and stands in the table with none: a program that names
// it ends in the failure of asking a leaf for its right link.
inline constexpr BuiltinFn hostfd_set = call<"nn", 'I', void(int64_t, void*), netfdset>;

inline constexpr BuiltinFn hostaf_unspec = call<"", 'i', int64_t(), netafunspec>;
inline constexpr BuiltinFn hostai_passive = call<"", 'i', int64_t(), netaipassive>;
inline constexpr BuiltinFn hostaddrinfo = call<"", 'i', int64_t(), netaddrsize>;

inline constexpr BuiltinFn hostopendir = call<"s", 'i', void*(const char*), diropen>;
inline constexpr BuiltinFn hostreaddir = call<"n", 'i', void*(void*), dirread>;
inline constexpr BuiltinFn hostclosedir = call<"n", 'i', int(void*), dirclose>;
inline constexpr BuiltinFn hostdirent = call<"", 'i', int64_t(), dirsize>;

}  // namespace tarn
