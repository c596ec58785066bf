#include "failing_disk.h"

#include <sqlite3.h>

#include <utility>

namespace zkp::test {

namespace {

struct State {
    sqlite3_vfs* real = nullptr;
    sqlite3_vfs vfs{};
    FailingDisk::Failure failure = FailingDisk::Failure::PowerLost;
    bool armed = false;
    int left = 0;        ///< changes that still go well
    bool isDark = false; ///< the power has gone already
};

State& state() {
    static State one;
    return one;
}

/// The file of the real disk stands behind it in memory.
struct File {
    sqlite3_file base;

    static sqlite3_file* real(sqlite3_file* file) {
        return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
    }
};

/// True when this change is one that fails.
bool fails() {
    State& s = state();
    if (!s.armed)
        return false;
    return s.left-- <= 0;
}

bool isPowerLost() {
    return state().failure == FailingDisk::Failure::PowerLost;
}

/// True when the power goes in the middle of what is no write.
bool goesDark() {
    state().isDark = isPowerLost();
    return state().isDark;
}

int closeFile(sqlite3_file* file) {
    return File::real(file)->pMethods->xClose(File::real(file));
}
int readFile(sqlite3_file* file, void* to, int count, sqlite3_int64 at) {
    return File::real(file)->pMethods->xRead(File::real(file), to, count, at);
}

/// The write in whose middle the power goes reaches the disk by half; later ones don't at all.
int writeFile(sqlite3_file* file, const void* from, int count, sqlite3_int64 at) {
    sqlite3_file* real = File::real(file);
    if (!fails())
        return real->pMethods->xWrite(real, from, count, at);
    if (isPowerLost()) {
        if (!std::exchange(state().isDark, true))
            real->pMethods->xWrite(real, from, count / 2, at);
        return SQLITE_IOERR_WRITE;
    }
    sqlite3_int64 size = 0;
    real->pMethods->xFileSize(real, &size);
    return at + count > size ? SQLITE_FULL : real->pMethods->xWrite(real, from, count, at);
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    if (fails() && goesDark())
        return SQLITE_IOERR_TRUNCATE;
    return File::real(file)->pMethods->xTruncate(File::real(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
    if (fails() && goesDark())
        return SQLITE_IOERR_FSYNC;
    return File::real(file)->pMethods->xSync(File::real(file), flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return File::real(file)->pMethods->xFileSize(File::real(file), size);
}
int lockFile(sqlite3_file* file, int level) {
    return File::real(file)->pMethods->xLock(File::real(file), level);
}
int unlockFile(sqlite3_file* file, int level) {
    return File::real(file)->pMethods->xUnlock(File::real(file), level);
}
int checkLock(sqlite3_file* file, int* out) {
    return File::real(file)->pMethods->xCheckReservedLock(File::real(file), out);
}
int controlFile(sqlite3_file* file, int op, void* argument) {
    return File::real(file)->pMethods->xFileControl(File::real(file), op, argument);
}
int sectorSize(sqlite3_file* file) {
    return File::real(file)->pMethods->xSectorSize(File::real(file));
}
int characteristics(sqlite3_file*) {
    return 0; // a disk that promises nothing
}

const sqlite3_io_methods kMethods = {1,           closeFile,  readFile,        writeFile,  truncateFile,
                                     syncFile,    fileSize,   lockFile,        unlockFile, checkLock,
                                     controlFile, sectorSize, characteristics, nullptr,    nullptr,
                                     nullptr,     nullptr,    nullptr,         nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    sqlite3_file* real = File::real(file);
    const int code = state().real->xOpen(state().real, name, real, flags, outFlags);
    file->pMethods = real->pMethods ? &kMethods : nullptr;
    return code;
}

int deleteFile(sqlite3_vfs*, const char* name, int sync) {
    if (fails() && goesDark())
        return SQLITE_IOERR_DELETE;
    return state().real->xDelete(state().real, name, sync);
}

} // namespace

FailingDisk::FailingDisk() {
    State& s = state();
    s.armed = false;
    s.real = sqlite3_vfs_find(nullptr);
    s.vfs = *s.real;
    s.vfs.pNext = nullptr;
    s.vfs.zName = "failing-disk";
    s.vfs.szOsFile = static_cast<int>(sizeof(File)) + s.real->szOsFile;
    s.vfs.xOpen = openFile;
    s.vfs.xDelete = deleteFile;
    sqlite3_vfs_register(&s.vfs, 1);
}

FailingDisk::~FailingDisk() {
    State& s = state();
    sqlite3_vfs_unregister(&s.vfs);
    sqlite3_vfs_register(s.real, 1);
}

void FailingDisk::failAt(int change, Failure failure) {
    State& s = state();
    s.failure = failure;
    s.left = change;
    s.isDark = false;
    s.armed = true;
}

} // namespace zkp::test
