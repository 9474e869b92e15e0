#pragma once

#include <sys/stat.h>
#include <sys/types.h>

/// The system calls that AtomicFile makes. Each behaves as its manual page says, errno included. They are an
/// interface so that a test can fail any one of them.
class FileCalls
{
public:
    virtual ~FileCalls() = default;
    /// The calls of the operating system. Without state; may be used from any thread.
    [[nodiscard]] static FileCalls &system();

    virtual int open(const char *path, int flags, mode_t mode) = 0;
    virtual ssize_t read(int fd, char *bytes, size_t size) = 0;
    virtual ssize_t write(int fd, const char *bytes, size_t size) = 0;
    virtual int fsync(int fd) = 0;
    virtual int close(int fd) = 0;
    virtual int rename(const char *from, const char *to) = 0;
    virtual int unlink(const char *path) = 0;
    virtual int mkdir(const char *path, mode_t mode) = 0;
    virtual int rmdir(const char *path) = 0;
    virtual int lstat(const char *path, struct stat *status) = 0;
    virtual ssize_t readlink(const char *path, char *target, size_t size) = 0;
};
