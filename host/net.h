// The sockets of the platform. Each function has the meaning and the results of the C function of
// the same name. What programs hand in, addresses and lengths alike, is passed on untested. A
// socket is an integer, and -1 a failure.
#pragma once

#include <cstdint>

namespace tarn {

// Starts the socket library, once, before any other call here. 0, or the platform's error number.
int netstart();

int64_t netsocket(int domain, int type, int protocol);
int64_t netbind(int64_t s, const void* address, int64_t n);
int64_t netconnect(int64_t s, const void* address, int64_t n);
int64_t netaccept(int64_t s, void* address, void* n);
int64_t netgetpeername(int64_t s, void* address, void* n);
int64_t netlisten(int64_t s, int backlog);
int64_t netshutdown(int64_t s, int how);
int64_t netclosesocket(int64_t s);
int64_t netsetsockopt(int64_t s, int level, int option, const void* value, int64_t n);

int64_t netsend(int64_t s, const void* from, int64_t n, int flags);
int64_t netrecv(int64_t s, void* to, int64_t n, int flags);
int64_t netsendto(int64_t s, const void* from, int64_t n, int flags, const void* address,
                  int64_t addressn);
int64_t netrecvfrom(int64_t s, void* to, int64_t n, int flags, void* address, void* addressn);

int64_t netgetaddrinfo(const char* node, const char* service, const void* hints, void* list);
void netfreeaddrinfo(void* list);
const char* netgai_strerror(int code);
int64_t netgetnameinfo(const void* address, int64_t n, char* host, int64_t hostn, char* service,
                       int64_t servicen, int flags);
int64_t netgethostname(char* out, int64_t n);
const char* netinet_ntop(int family, const void* from, char* out, int64_t n);
int64_t netinet_pton(int family, const char* from, void* to);

int64_t nethtonl(uint32_t n);
int64_t nethtons(uint16_t n);
uint64_t netntohl(uint32_t n);
uint64_t netntohs(uint16_t n);

// Adds a descriptor to an fd_set record, if it is not there and there is room.
void netfdset(int64_t descriptor, void* set);

int64_t netafunspec();   // AF_UNSPEC
int64_t netaipassive();  // AI_PASSIVE, and SOCK_STREAM
int64_t netaddrsize();   // of an `addrinfo` record

}  // namespace tarn
