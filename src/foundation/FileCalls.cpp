#include "foundation/FileCalls.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {
class SystemFileCalls final : public FileCalls
{
public:
    int open(const char *path, int flags, mode_t mode) override { return ::open(path, flags, mode); }
    ssize_t read(int fd, char *bytes, size_t size) override { return ::read(fd, bytes, size); }
    ssize_t write(int fd, const char *bytes, size_t size) override { return ::write(fd, bytes, size); }
    int fsync(int fd) override { return ::fsync(fd); }
    int close(int fd) override { return ::close(fd); }
    int rename(const char *from, const char *to) override { return ::rename(from, to); }
    int unlink(const char *path) override { return ::unlink(path); }
    int mkdir(const char *path, mode_t mode) override { return ::mkdir(path, mode); }
    int rmdir(const char *path) override { return ::rmdir(path); }
    int lstat(const char *path, struct stat *status) override { return ::lstat(path, status); }
    ssize_t readlink(const char *path, char *target, size_t size) override
    {
        return ::readlink(path, target, size);
    }
};
} // namespace

FileCalls &FileCalls::system()
{
    static SystemFileCalls calls;
    return calls;
}
