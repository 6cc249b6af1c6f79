// Test helper: sends one command line to the simulated modem's control
// socket and prints the answer line.  Usage: simctl SOCKET COMMAND...
// Exit status 0 for "ok" or a JSON answer, 1 for "error: ...", 2 when the
// socket cannot be reached.
#include <poll.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

int main(int argc, char** argv) {
    if (argc < 3) {
        fprintf(stderr, "usage: simctl SOCKET COMMAND...\n");
        return 2;
    }
    sockaddr_un addr = {};
    addr.sun_family = AF_UNIX;
    snprintf(addr.sun_path, sizeof addr.sun_path, "%s", argv[1]);
    int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    if (fd < 0 || connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) < 0) {
        perror(argv[1]);
        return 2;
    }
    char line[512] = "";
    for (int i = 2; i < argc; ++i) {
        if (i > 2) strncat(line, " ", sizeof line - strlen(line) - 1);
        strncat(line, argv[i], sizeof line - strlen(line) - 1);
    }
    strncat(line, "\n", sizeof line - strlen(line) - 1);
    if (write(fd, line, strlen(line)) < 0) return 2;
    char answer[8192];
    size_t got = 0;
    while (got + 1 < sizeof answer) {
        pollfd p = {fd, POLLIN, 0};
        if (poll(&p, 1, 5000) <= 0) break;  // the simulator answers at once
        ssize_t n = read(fd, answer + got, sizeof answer - 1 - got);
        if (n <= 0) break;
        got += size_t(n);
        if (memchr(answer, '\n', got)) break;
    }
    answer[got] = 0;
    fputs(answer, stdout);
    close(fd);
    return strncmp(answer, "error", 5) == 0 ? 1 : got ? 0 : 2;
}
