// Sockets on POSIX systems: the calls as they are.
#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

#include "host/net.h"

namespace tarn {

static int fd(int64_t s) { return static_cast<int>(s); }
static size_t count(int64_t n) { return static_cast<size_t>(n); }
static socklen_t length(int64_t n) { return static_cast<socklen_t>(n); }
static const sockaddr* from(const void* address) { return static_cast<const sockaddr*>(address); }
static sockaddr* to(void* address) { return static_cast<sockaddr*>(address); }
static socklen_t* place(void* n) { return static_cast<socklen_t*>(n); }

int netstart() { return 0; }

int64_t netsocket(int domain, int type, int protocol) { return socket(domain, type, protocol); }
int64_t netbind(int64_t s, const void* a, int64_t n) { return bind(fd(s), from(a), length(n)); }
int64_t netconnect(int64_t s, const void* a, int64_t n) {
  return connect(fd(s), from(a), length(n));
}
int64_t netaccept(int64_t s, void* a, void* n) { return accept(fd(s), to(a), place(n)); }
int64_t netgetpeername(int64_t s, void* a, void* n) { return getpeername(fd(s), to(a), place(n)); }
int64_t netlisten(int64_t s, int backlog) { return listen(fd(s), backlog); }
int64_t netshutdown(int64_t s, int how) { return shutdown(fd(s), how); }
int64_t netclosesocket(int64_t s) { return close(fd(s)); }
int64_t netsetsockopt(int64_t s, int level, int option, const void* value, int64_t n) {
  return setsockopt(fd(s), level, option, value, length(n));
}

int64_t netsend(int64_t s, const void* bytes, int64_t n, int flags) {
  return send(fd(s), bytes, count(n), flags);
}
int64_t netrecv(int64_t s, void* bytes, int64_t n, int flags) {
  return recv(fd(s), bytes, count(n), flags);
}
int64_t netsendto(int64_t s, const void* bytes, int64_t n, int flags, const void* a, int64_t an) {
  return sendto(fd(s), bytes, count(n), flags, from(a), length(an));
}
int64_t netrecvfrom(int64_t s, void* bytes, int64_t n, int flags, void* a, void* an) {
  return recvfrom(fd(s), bytes, count(n), flags, to(a), place(an));
}

int64_t netgetaddrinfo(const char* node, const char* service, const void* hints, void* list) {
  return getaddrinfo(node, service, static_cast<const addrinfo*>(hints),
                     static_cast<addrinfo**>(list));
}
void netfreeaddrinfo(void* list) { freeaddrinfo(static_cast<addrinfo*>(list)); }
const char* netgai_strerror(int code) { return gai_strerror(code); }
int64_t netgetnameinfo(const void* a, int64_t n, char* host, int64_t hostn, char* service,
                       int64_t servicen, int flags) {
  return getnameinfo(from(a), length(n), host, length(hostn), service, length(servicen), flags);
}
int64_t netgethostname(char* out, int64_t n) { return gethostname(out, count(n)); }
const char* netinet_ntop(int family, const void* bytes, char* out, int64_t n) {
  return inet_ntop(family, bytes, out, length(n));
}
int64_t netinet_pton(int family, const char* text, void* out) {
  return inet_pton(family, text, out);
}

int64_t nethtonl(uint32_t n) { return htonl(n); }
int64_t nethtons(uint16_t n) { return htons(n); }
uint64_t netntohl(uint32_t n) { return ntohl(n); }
uint64_t netntohs(uint16_t n) { return ntohs(n); }

void netfdset(int64_t descriptor, void* set) {
  if (descriptor >= 0 && descriptor < FD_SETSIZE) FD_SET(fd(descriptor), static_cast<fd_set*>(set));
}

static_assert(AI_PASSIVE == 1 && SOCK_STREAM == 1);  // two names for one builtin

int64_t netafunspec() { return AF_UNSPEC; }
int64_t netaipassive() { return AI_PASSIVE; }
int64_t netaddrsize() { return sizeof(addrinfo); }

}  // namespace tarn
