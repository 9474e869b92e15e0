#pragma once

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The system calls behind AtomicFile. They are virtual so that a test can fail any one of them; an override
/// behaves as the manual page says, errno included.
class FileCalls
{
public:
    virtual ~FileCalls() = default;

    virtual int open(const char *path, int flags, mode_t mode) { return ::open(path, flags, mode); }
    virtual ssize_t read(int fd, char *bytes, size_t size) { return ::read(fd, bytes, size); }
    virtual ssize_t write(int fd, const char *bytes, size_t size) { return ::write(fd, bytes, size); }
    virtual int fsync(int fd) { return ::fsync(fd); }
    virtual int close(int fd) { return ::close(fd); }
    virtual int rename(const char *from, const char *to) { return ::rename(from, to); }
    virtual int remove(const char *path) { return ::remove(path); } ///< a file or an empty folder
    virtual int mkdir(const char *path, mode_t mode) { return ::mkdir(path, mode); }
    virtual ssize_t readlink(const char *path, char *target, size_t size)
    {
        return ::readlink(path, target, size);
    }

    /// Has no state; may be used from any thread.
    [[nodiscard]] static FileCalls &system()
    {
        static FileCalls calls;
        return calls;
    }
};
