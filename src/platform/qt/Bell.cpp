#include "platform/qt/Bell.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

/// Starts `program` with `input` as its standard input and without an output; 0 if it cannot.
pid_t spawn(const QString& program, int input) {
  QByteArray path = QFile::encodeName(program);
  char* const arguments[] = {path.data(), nullptr};
  posix_spawn_file_actions_t files;
  ::posix_spawn_file_actions_init(&files);
  ::posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
  }
  pid_t process = 0;
  const int failure = ::posix_spawn(&process, path, &files, nullptr, arguments, environ);
  ::posix_spawn_file_actions_destroy(&files);
  return failure == 0 ? process : 0;
}

}  // namespace

Bell::Bell(QString player, std::function<void()> fallback)
    : player_(std::move(player)), fallback_(std::move(fallback)) {
  QObject::connect(&playerEnd_, &QSocketNotifier::activated, [this] { giveUp(); });
}

Bell::~Bell() { ::close(socket_); }

/// The player beside this program, as in a build folder, else the installed one.
QString Bell::installedPlayer() {
  const QString here = QCoreApplication::applicationDirPath();
  const QString beside = here + u"/karvenis-bell"_s;
  return QFileInfo::exists(beside) ? beside : here + u"/" KARVENIS_LIBEXEC "/karvenis-bell"_s;
}

void Bell::ring() {
  if (!started_) start();
  if (passOn()) return;
  giveUp();
  fallback_();
}

void Bell::start() {
  started_ = true;
  int ends[2];  // sockets, since a write to a broken pipe would end the program
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
  process_ = spawn(player_, ends[1]);
  ::close(ends[1]);
  socket_ = ends[0];
  playerEnd_.setSocket(socket_);
  playerEnd_.setEnabled(true);
}

/// Sends the ring. Returns false if there is no player; a ring that it is too busy for counts as
/// sent.
bool Bell::passOn() const {
  return ::send(socket_, "", 1, MSG_DONTWAIT | MSG_NOSIGNAL) == 1 || errno == EAGAIN;
}

/// Closes the socket and ends the player; from then on the fallback rings.
void Bell::giveUp() {
  playerEnd_.setEnabled(false);
  ::close(std::exchange(socket_, -1));
  const pid_t process = std::exchange(process_, 0);
  if (process == 0) return;
  ::kill(process, SIGKILL);  // so that the next line never waits
  ::waitpid(process, nullptr, 0);
}

}  // namespace karvenis
