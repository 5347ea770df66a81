// peak-of COMMAND [ARGUMENT...]: runs the command and prints the most memory that it had, in bytes. A process that
// becomes another one counts the memory of what it was before, so it is started from one that has next to none.
#include <fcntl.h>
#include <iostream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char* argv[]) {
  if (argc < 2) return 2;
  const pid_t command = ::fork();
  if (command == 0) {
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
    ::execvp(argv[1], argv + 1);
    ::_exit(127);
  }
  int status = 0;
  rusage used{};
  ::wait4(command, &status, 0, &used);
  if (status != 0) return 1;
  std::cout << used.ru_maxrss * 1024 << std::endl;
  return 0;
}
