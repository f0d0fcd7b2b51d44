// SPDX-License-Identifier: GPL-3.0-or-later
// A library to preload that makes file systems misbehave for one program:
//
//     FAULT_CALL=write FAULT_NUMBER=7 FAULT_WAY=error FAULT_PROGRAM=zelto-batch FAULT_BELOW=/tmp/x FAULT_LOG=/tmp/fired
//
// has the seventh write() of zelto-batch to a file below /tmp/x fail with an input/output error (FAULT_WAY=short: does
// only a part; FAULT_WAY=kill: ends the process in its stead) and leaves a file at FAULT_LOG to say that it came to that.
//
//     FAULT_CALL=malloc FAULT_NUMBER=7 FAULT_WAY=error FAULT_SIZE=4096
//
// has the seventh allocation of at least 4096 bytes return nothing (FAULT_WAY=onwards: and all of that size after it).
//
//     FOLD_BELOW=/tmp/card
//
// has names in the folders below /tmp/card found in any letter case, as memory cards do.
#define _GNU_SOURCE
#include <ctype.h>
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

// The C library's allocator, under the names it keeps for programs that replace malloc.
extern void* __libc_malloc(size_t bytes);
extern void* __libc_calloc(size_t items, size_t bytes);
extern void* __libc_realloc(void* memory, size_t bytes);
extern void* __libc_memalign(size_t alignment, size_t bytes);

#define REAL(name, ...) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))(__VA_ARGS__)

// What is to become of allocations, read once: they are too many to ask the environment each time.
static struct {
    size_t size;  // the smallest that counts; none does until this is set
    long number;  // the one that fails
    int onwards;  // whether all after it fail as well
    atomic_long count;
} memory = {.size = SIZE_MAX};

__attribute__((constructor)) static void readMemoryFaults(void) {
    const char* call = getenv("FAULT_CALL");
    const char* program = getenv("FAULT_PROGRAM");
    const char* size = getenv("FAULT_SIZE");
    if (call == NULL || strcmp(call, "malloc") != 0 || size == NULL) return;
    if (program != NULL && strcmp(program, program_invocation_short_name) != 0) return;
    memory.number = atol(getenv("FAULT_NUMBER"));
    memory.onwards = strcmp(getenv("FAULT_WAY"), "onwards") == 0;
    memory.size = (size_t)atol(size);
}

static int hasNoMemory(size_t bytes) {
    if (bytes < memory.size) return 0;
    const long count = atomic_fetch_add(&memory.count, 1) + 1;
    if (count < memory.number || (count > memory.number && !memory.onwards)) return 0;
    if (count == memory.number) REAL(close, REAL(open, getenv("FAULT_LOG"), O_CREAT | O_WRONLY, 0600));
    errno = ENOMEM;
    return 1;
}

void* malloc(size_t bytes) {
    return hasNoMemory(bytes) ? NULL : __libc_malloc(bytes);
}

void* calloc(size_t items, size_t bytes) {
    return hasNoMemory(items * bytes) ? NULL : __libc_calloc(items, bytes);
}

void* realloc(void* old, size_t bytes) {
    return hasNoMemory(bytes) ? NULL : __libc_realloc(old, bytes);
}

int posix_memalign(void** result, size_t alignment, size_t bytes) {
    void* const found = hasNoMemory(bytes) ? NULL : __libc_memalign(alignment, bytes);
    if (found != NULL) *result = found;
    return found == NULL ? ENOMEM : 0;
}

void* aligned_alloc(size_t alignment, size_t bytes) {
    return hasNoMemory(bytes) ? NULL : __libc_memalign(alignment, bytes);
}

static int isBelow(const char* path, const char* variable) {
    const char* folder = getenv(variable);
    return folder != NULL && path != NULL && strncmp(path, folder, strlen(folder)) == 0;
}

static int fired(const char* call, const char* path, const char* way) {
    static atomic_int count;
    const char* wanted = getenv("FAULT_CALL");
    const char* wantedWay = getenv("FAULT_WAY");
    const char* program = getenv("FAULT_PROGRAM");
    if (wanted == NULL || strcmp(wanted, call) != 0 || wantedWay == NULL) return 0;
    if (program != NULL && strcmp(program, program_invocation_short_name) != 0) return 0;
    if (!isBelow(path, "FAULT_BELOW")) return 0;
    if (strcmp(wantedWay, "kill") != 0 && strcmp(wantedWay, way) != 0) return 0;
    if (atomic_fetch_add(&count, 1) + 1 != atoi(getenv("FAULT_NUMBER"))) return 0;
    const int log = REAL(open, getenv("FAULT_LOG"), O_CREAT | O_WRONLY, 0600);
    if (log >= 0) REAL(close, log);
    if (strcmp(wantedWay, "kill") == 0) kill(getpid(), SIGKILL);
    return 1;
}

static int fails(const char* call, const char* path) {
    if (!fired(call, path, "error")) return 0;
    errno = EIO;
    return 1;
}

static const char* pathOf(int file, char* buffer) {
    char name[64];
    snprintf(name, sizeof name, "/proc/self/fd/%d", file);
    const ssize_t size = readlink(name, buffer, PATH_MAX - 1);
    buffer[size < 0 ? 0 : size] = 0;
    return buffer;
}

// The spelling under which the folder has the last component of `path`; `path` where it has none.
static const char* folded(const char* path, char* buffer) {
    if (!isBelow(path, "FOLD_BELOW") || strlen(path) >= PATH_MAX) return path;
    strcpy(buffer, path);
    char* name = strrchr(buffer, '/');
    if (name == NULL || name == buffer) return path;
    *name++ = 0;
    DIR* folder = opendir(buffer);
    name[-1] = '/';
    if (folder == NULL) return path;
    for (struct dirent* entry = readdir(folder); entry != NULL; entry = readdir(folder)) {
        if (strcasecmp(entry->d_name, name) == 0) {
            strcpy(name, entry->d_name);
            break;
        }
    }
    closedir(folder);
    return buffer;
}

static mode_t modeOf(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(arguments, mode_t) : 0;
}

#define OPEN(name)                                            \
    int name(const char* path, int flags, ...) {              \
        va_list arguments;                                    \
        va_start(arguments, flags);                           \
        const mode_t mode = modeOf(flags, arguments);         \
        va_end(arguments);                                    \
        char buffer[PATH_MAX];                                \
        if (fails("open", path)) return -1;                   \
        return REAL(name, folded(path, buffer), flags, mode); \
    }
OPEN(open)
OPEN(open64)

#define OPENAT(name)                                                  \
    int name(int folder, const char* path, int flags, ...) {          \
        va_list arguments;                                            \
        va_start(arguments, flags);                                   \
        const mode_t mode = modeOf(flags, arguments);                 \
        va_end(arguments);                                            \
        char buffer[PATH_MAX];                                        \
        if (fails("open", path)) return -1;                           \
        return REAL(name, folder, folded(path, buffer), flags, mode); \
    }
OPENAT(openat)
OPENAT(openat64)

ssize_t read(int file, void* bytes, size_t size) {
    char buffer[PATH_MAX];
    if (fails("read", pathOf(file, buffer))) return -1;
    return REAL(read, file, bytes,
                size > 1 && fired("read", pathOf(file, buffer), "short") ? size / 2 : size);
}

ssize_t write(int file, const void* bytes, size_t size) {
    char buffer[PATH_MAX];
    if (fails("write", pathOf(file, buffer))) return -1;
    return REAL(write, file, bytes,
                size > 1 && fired("write", pathOf(file, buffer), "short") ? size / 2 : size);
}

int fsync(int file) {
    char buffer[PATH_MAX];
    return fails("fsync", pathOf(file, buffer)) ? -1 : REAL(fsync, file);
}

int close(int file) {
    char buffer[PATH_MAX];
    const int failed = fails("close", pathOf(file, buffer));
    const int result = REAL(close, file);
    if (!failed) return result;
    errno = EIO;
    return -1;
}

int rename(const char* from, const char* to) {
    char one[PATH_MAX], other[PATH_MAX];
    return fails("rename", from) ? -1 : REAL(rename, folded(from, one), folded(to, other));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    char buffer[PATH_MAX];
    return fails("link", to) ? -1 : REAL(linkat, fromFolder, from, toFolder, folded(to, buffer), flags);
}

int unlink(const char* path) {
    char buffer[PATH_MAX];
    return fails("unlink", path) ? -1 : REAL(unlink, folded(path, buffer));
}

int mkdir(const char* path, mode_t mode) {
    return fails("mkdir", path) ? -1 : REAL(mkdir, path, mode);
}

int access(const char* path, int mode) {
    char buffer[PATH_MAX];
    return REAL(access, folded(path, buffer), mode);
}

int stat(const char* path, struct stat* status) {
    char buffer[PATH_MAX];
    return REAL(stat, folded(path, buffer), status);
}

int lstat(const char* path, struct stat* status) {
    char buffer[PATH_MAX];
    return REAL(lstat, folded(path, buffer), status);
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) {
    char buffer[PATH_MAX];
    return REAL(statx, folder, folded(path, buffer), flags, mask, status);
}
