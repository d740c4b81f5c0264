#ifndef ZELTYPES_CORE_COMMON_ZELLOCK_H
#define ZELTYPES_CORE_COMMON_ZELLOCK_H

#include <ZelTypes/Core/Common/ZelExport.h>

#include <boost/thread/recursive_mutex.hpp>

namespace ZELN
{

/// A lock handed to a manager object without tying either to a threading library.
class ZELTYPES_API CZelLock
{
public:
    /// Takes the lock, waiting for it.
    virtual void Lock() = 0;
    /// Releases the lock.
    virtual void Unlock() = 0;
    /// Destroys the object.
    virtual ~CZelLock();
};

/// A lock with separate reading and writing sides.
class ZELTYPES_API IZelReaderWriterLock
{
public:
    /// Destroys the object.
    virtual ~IZelReaderWriterLock();
    /// Takes the lock for reading.
    virtual void ReadLock() = 0;
    /// Takes the lock for writing.
    virtual void WriteLock() = 0;
    /// Releases a lock taken for reading.
    virtual void ReadUnlock() = 0;
    /// Releases a lock taken for writing.
    virtual void WriteUnlock() = 0;
};

/// Recursive for the owning thread: a second Lock only raises the count.
class ZELTYPES_API CZelMutex : public CZelLock
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelMutex();
    /// Destroys the object.
    ~CZelMutex() override;
    /// Deleted: objects of this class are not copied or moved.
    CZelMutex(const CZelMutex&) = delete;
    /// Deleted: objects of this class are not copied or moved.
    CZelMutex& operator=(const CZelMutex&) = delete;

    void Lock() override;
    void Unlock() override;

private:
    boost::recursive_mutex m_Mutex;
};

/// Readers and writers take the same recursive mutex, so readers exclude each
/// other too; nothing in the library needs shared reading.
class ZELTYPES_API CZelReaderWriterLock : public IZelReaderWriterLock
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelReaderWriterLock();
    /// Destroys the object.
    ~CZelReaderWriterLock() override;
    /// Deleted: objects of this class are not copied or moved.
    CZelReaderWriterLock(const CZelReaderWriterLock&) = delete;
    /// Deleted: objects of this class are not copied or moved.
    CZelReaderWriterLock& operator=(const CZelReaderWriterLock&) = delete;

    void ReadLock() override;
    void WriteLock() override;
    void ReadUnlock() override;
    void WriteUnlock() override;

private:
    boost::recursive_mutex m_Mutex;
};

/// Holds a CZelLock for its own lifetime: locks on construction, unlocks on destruction.
class ZELTYPES_API CZelGuard
{
public:
    /// Takes rLock; it must outlive the guard.
    explicit CZelGuard(CZelLock& rLock);
    /// Destroys the object.
    virtual ~CZelGuard();
    /// Deleted: objects of this class are not copied or moved.
    CZelGuard(const CZelGuard&) = delete;
    /// Deleted: objects of this class are not copied or moved.
    CZelGuard& operator=(const CZelGuard&) = delete;

private:
    CZelLock& m_rLock;
};

/// The library's one static lock beside the frequency manager's; free for the
/// library's own once-only work that needs exclusion.
ZELTYPES_API CZelMutex& GetZelStaticLock();

} // namespace ZELN

#endif
