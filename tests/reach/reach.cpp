// reach LOG COMMAND…: runs a command, and writes down what it and every process that it begins asks of the system for
// files, processes and connections, whichever library asks. A line is: KIND, a tab, what, and for a path its two forms,
// as it was asked for and as it is found, with a tab between. The exit status is the command's; 77 where the system
// does not let a program watch its own.
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int cannotWatch = 77;
constexpr int none = -1;

enum class Kind { Open, OpenHow, Create, Path, Socket, Connect, Execute, Clone, Clone3, Fork };

// Where a call has its folder and its path; what has two paths stands in two rows.
struct Call {
  long number;
  char const* name;
  Kind kind;
  int folder = none, path = none;
};
constexpr Call calls[] = {
#ifdef SYS_open  // not on every machine
    {SYS_open, "open", Kind::Open, none, 0},
    {SYS_creat, "open", Kind::Create, none, 0},
    {SYS_unlink, "remove", Kind::Path, none, 0},
    {SYS_rmdir, "remove", Kind::Path, none, 0},
    {SYS_mkdir, "make", Kind::Path, none, 0},
    {SYS_rename, "rename", Kind::Path, none, 0},
    {SYS_rename, "rename", Kind::Path, none, 1},
    {SYS_link, "link", Kind::Path, none, 1},
    {SYS_symlink, "link", Kind::Path, none, 1},
    {SYS_mknod, "make", Kind::Path, none, 0},
    {SYS_chmod, "change", Kind::Path, none, 0},
    {SYS_chown, "change", Kind::Path, none, 0},
    {SYS_fork, "process", Kind::Fork},
    {SYS_vfork, "process", Kind::Fork},
#endif
    {SYS_openat, "open", Kind::Open, 0, 1},
    {SYS_openat2, "open", Kind::OpenHow, 0, 1},
    {SYS_unlinkat, "remove", Kind::Path, 0, 1},
    {SYS_mkdirat, "make", Kind::Path, 0, 1},
    {SYS_mknodat, "make", Kind::Path, 0, 1},
    {SYS_renameat, "rename", Kind::Path, 0, 1},
    {SYS_renameat, "rename", Kind::Path, 2, 3},
    {SYS_renameat2, "rename", Kind::Path, 0, 1},
    {SYS_renameat2, "rename", Kind::Path, 2, 3},
    {SYS_linkat, "link", Kind::Path, 2, 3},
    {SYS_symlinkat, "link", Kind::Path, 1, 2},
    {SYS_fchmodat, "change", Kind::Path, 0, 1},
    {SYS_fchownat, "change", Kind::Path, 0, 1},
    {SYS_truncate, "change", Kind::Path, none, 0},
    {SYS_socket, "socket", Kind::Socket},
    {SYS_connect, "connect", Kind::Connect},
    {SYS_execve, "execute", Kind::Execute, none, 0},
    {SYS_execveat, "execute", Kind::Execute, 0, 1},
    {SYS_clone, "process", Kind::Clone},
    {SYS_clone3, "process", Kind::Clone3},
};

std::vector<sock_filter> watching() {
  std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
  for (Call const& call : calls) {
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<__u32>(call.number), 0, 1));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
  }
  filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  return filter;
}

// The descriptor on which this process's calls are told from now on.
int watchMyself() {
  auto filter = watching();
  sock_fprog const program{static_cast<unsigned short>(filter.size()), filter.data()};
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return -1;
  return static_cast<int>(syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

struct Descriptor {
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room{};
  char byte = 0;
  iovec part{&byte, 1};
  msghdr message{};

  Descriptor() {
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = room.data();
    message.msg_controllen = room.size();
  }
};

bool send(int to, int descriptor) {
  Descriptor sent;
  cmsghdr* const head = CMSG_FIRSTHDR(&sent.message);
  head->cmsg_level = SOL_SOCKET;
  head->cmsg_type = SCM_RIGHTS;
  head->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(head), &descriptor, sizeof descriptor);
  return sendmsg(to, &sent.message, 0) == 1;
}

int received(int from) {
  Descriptor got;
  int descriptor = -1;
  if (recvmsg(from, &got.message, 0) == 1)
    if (cmsghdr* const head = CMSG_FIRSTHDR(&got.message)) std::memcpy(&descriptor, CMSG_DATA(head), sizeof descriptor);
  return descriptor;
}

class Recorder {
public:
  Recorder(int listener, std::FILE* log) : listener_(listener), log_(log) {}

  // Until every process that is watched has ended.
  void run() {
    for (;;) {
      pollfd ready{listener_, POLLIN, 0};
      if (poll(&ready, 1, -1) < 0) continue;
      if ((ready.revents & POLLIN) == 0) return;
      seccomp_notif asked{};
      if (ioctl(listener_, SECCOMP_IOCTL_NOTIF_RECV, &asked) != 0) continue;
      for (Call const& call : calls)
        if (call.number == asked.data.nr) note(call, asked);
      seccomp_notif_resp answer{};
      answer.id = asked.id;
      answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
      ioctl(listener_, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    }
  }

private:
  static bool read(pid_t process, __u64 address, void* to, std::size_t size) {
    std::string const name = "/proc/" + std::to_string(process) + "/mem";
    int const memory = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    bool const isRead = memory >= 0 && pread(memory, to, size, static_cast<off_t>(address)) > 0;
    if (memory >= 0) close(memory);
    return isRead;
  }

  static std::string text(pid_t process, __u64 address) {
    std::array<char, 4097> bytes{};  // the longest path; its end may be the end of what is mapped
    read(process, address, bytes.data(), bytes.size() - 1);
    return bytes.data();
  }

  static std::string linkIn(pid_t process, std::string const& name) {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/" + std::to_string(process) + '/' + name, error).string();
  }

  static std::string place(Call const& call, seccomp_notif const& asked) {
    auto const process = static_cast<pid_t>(asked.pid);
    std::string const path = text(process, asked.data.args[call.path]);
    if (path.rfind('/', 0) == 0) return path;
    int const folder = call.folder == none ? AT_FDCWD : static_cast<int>(asked.data.args[call.folder]);
    return linkIn(process, folder == AT_FDCWD ? "cwd" : "fd/" + std::to_string(folder)) + '/' + path;
  }

  // What a process finds of itself would be ours here.
  static std::string found(std::string const& path) {
    std::error_code error;
    std::filesystem::path const normal = std::filesystem::path(path).lexically_normal();
    if (normal.string().rfind("/proc/", 0) == 0) return normal.string();
    return std::filesystem::weakly_canonical(normal, error).string();
  }

  static int flagsOf(Call const& call, seccomp_notif const& asked) {
    if (call.kind == Kind::Create) return O_WRONLY | O_CREAT;
    if (call.kind == Kind::Open) return static_cast<int>(asked.data.args[call.path + 1]);
    __u64 flags = 0;
    read(static_cast<pid_t>(asked.pid), asked.data.args[2], &flags, sizeof flags);
    return static_cast<int>(flags);
  }

  static bool isThread(Call const& call, seccomp_notif const& asked) {
    __u64 flags = call.kind == Kind::Clone ? asked.data.args[0] : 0;
    if (call.kind == Kind::Clone3) read(static_cast<pid_t>(asked.pid), asked.data.args[0], &flags, sizeof flags);
    return (flags & CLONE_THREAD) != 0;
  }

  void write(char const* kind, std::string const& what) { std::fprintf(log_, "%s\t%s\n", kind, what.c_str()); }

  void note(Call const& call, seccomp_notif const& asked) {
    switch (call.kind) {
      case Kind::Open:
      case Kind::OpenHow:
      case Kind::Create: {
        int const flags = flagsOf(call, asked);
        bool const writes = (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
        std::string const path = place(call, asked);
        return write(writes ? "write" : "read", path + '\t' + found(path));
      }
      case Kind::Path:
      case Kind::Execute: {
        std::string const path = place(call, asked);
        return write(call.name, path + '\t' + found(path));
      }
      case Kind::Socket: return write(call.name, std::to_string(asked.data.args[0]));
      case Kind::Connect: {
        sa_family_t family = 0;
        read(static_cast<pid_t>(asked.pid), asked.data.args[1], &family, sizeof family);
        return write(call.name, std::to_string(family));
      }
      case Kind::Clone:
      case Kind::Clone3:
        if (!isThread(call, asked)) write(call.name, std::to_string(asked.pid));
        return;
      case Kind::Fork: return write(call.name, std::to_string(asked.pid));
    }
  }

  int listener_;
  std::FILE* log_;
};

}  // namespace

int main(int argc, char** argv) {
  int ends[2];
  std::FILE* const log = argc > 2 ? std::fopen(argv[1], "w") : nullptr;
  if (!log || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return 2;
  pid_t const process = fork();
  if (process == 0) {
    int const listener = watchMyself();
    if (listener < 0 || !send(ends[1], listener)) _exit(cannotWatch);
    close(listener);
    execvp(argv[2], argv + 2);
    _exit(127);
  }
  close(ends[1]);
  int const listener = received(ends[0]);
  if (listener >= 0) Recorder(listener, log).run();
  int status = 0;
  waitpid(process, &status, 0);
  std::fclose(log);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
