// Sockets on Windows: the socket library's calls, which take integers where POSIX has descriptors.
#include <winsock2.h>
#include <ws2tcpip.h>

#include "host/net.h"

namespace tarn {

static SOCKET handle(int64_t s) { return static_cast<SOCKET>(s); }
static int count(int64_t n) { return static_cast<int>(n); }
static const sockaddr* from(const void* address) { return static_cast<const sockaddr*>(address); }
static sockaddr* to(void* address) { return static_cast<sockaddr*>(address); }
static int* place(void* n) { return static_cast<int*>(n); }
static const char* text(const void* bytes) { return static_cast<const char*>(bytes); }

int netstart() {
  WSADATA about;
  return WSAStartup(MAKEWORD(2, 2), &about);
}

int64_t netsocket(int domain, int type, int protocol) {
  return static_cast<int64_t>(socket(domain, type, protocol));
}
int64_t netbind(int64_t s, const void* a, int64_t n) { return bind(handle(s), from(a), count(n)); }
int64_t netconnect(int64_t s, const void* a, int64_t n) {
  return connect(handle(s), from(a), count(n));
}
int64_t netaccept(int64_t s, void* a, void* n) {
  return static_cast<int64_t>(accept(handle(s), to(a), place(n)));
}
int64_t netgetpeername(int64_t s, void* a, void* n) {
  return getpeername(handle(s), to(a), place(n));
}
int64_t netlisten(int64_t s, int backlog) { return listen(handle(s), backlog); }
int64_t netshutdown(int64_t s, int how) { return shutdown(handle(s), how); }
int64_t netclosesocket(int64_t s) { return closesocket(handle(s)); }
int64_t netsetsockopt(int64_t s, int level, int option, const void* value, int64_t n) {
  return setsockopt(handle(s), level, option, text(value), count(n));
}

int64_t netsend(int64_t s, const void* bytes, int64_t n, int flags) {
  return send(handle(s), text(bytes), count(n), flags);
}
int64_t netrecv(int64_t s, void* bytes, int64_t n, int flags) {
  return recv(handle(s), static_cast<char*>(bytes), count(n), flags);
}
int64_t netsendto(int64_t s, const void* bytes, int64_t n, int flags, const void* a, int64_t an) {
  return sendto(handle(s), text(bytes), count(n), flags, from(a), count(an));
}
int64_t netrecvfrom(int64_t s, void* bytes, int64_t n, int flags, void* a, void* an) {
  return recvfrom(handle(s), static_cast<char*>(bytes), count(n), flags, to(a), place(an));
}

int64_t netgetaddrinfo(const char* node, const char* service, const void* hints, void* list) {
  return getaddrinfo(node, service, static_cast<const addrinfo*>(hints),
                     static_cast<addrinfo**>(list));
}
void netfreeaddrinfo(void* list) { freeaddrinfo(static_cast<addrinfo*>(list)); }
const char* netgai_strerror(int code) { return gai_strerrorA(code); }
int64_t netgetnameinfo(const void* a, int64_t n, char* host, int64_t hostn, char* service,
                       int64_t servicen, int flags) {
  return getnameinfo(from(a), count(n), host, static_cast<DWORD>(hostn), service,
                     static_cast<DWORD>(servicen), flags);
}
int64_t netgethostname(char* out, int64_t n) { return gethostname(out, count(n)); }
const char* netinet_ntop(int family, const void* bytes, char* out, int64_t n) {
  return inet_ntop(family, const_cast<void*>(bytes), out, static_cast<size_t>(n));
}
int64_t netinet_pton(int family, const char* address, void* out) {
  return inet_pton(family, address, out);
}

int64_t nethtonl(uint32_t n) { return htonl(n); }
int64_t nethtons(uint16_t n) { return htons(n); }
uint64_t netntohl(uint32_t n) { return ntohl(n); }
uint64_t netntohs(uint16_t n) { return ntohs(n); }

// There an fd_set is a count and at most 64 descriptors.
void netfdset(int64_t descriptor, void* record) {
  fd_set* set = static_cast<fd_set*>(record);
  for (unsigned i = 0; i < set->fd_count; i++) {
    if (set->fd_array[i] == handle(descriptor)) return;
  }
  if (set->fd_count < FD_SETSIZE) set->fd_array[set->fd_count++] = handle(descriptor);
}

static_assert(AI_PASSIVE == 1 && SOCK_STREAM == 1);  // two names for one builtin

int64_t netafunspec() { return AF_UNSPEC; }
int64_t netaipassive() { return AI_PASSIVE; }
int64_t netaddrsize() { return sizeof(addrinfo); }

}  // namespace tarn
