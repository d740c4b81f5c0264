#ifndef ZELTYPES_CORE_COMMON_ZELLOCK_H
#define ZELTYPES_CORE_COMMON_ZELLOCK_H

#include <ZelTypes/Core/Common/ZelExport.h>

#include <boost/thread/recursive_mutex.hpp>

namespace ZELN
{

// A lock handed to a manager object without tying either to a threading library.
class ZELTYPES_API CZelLock
{
public:
    virtual void Lock() = 0;
    virtual void Unlock() = 0;
    virtual ~CZelLock();
};

class ZELTYPES_API IZelReaderWriterLock
{
public:
    virtual ~IZelReaderWriterLock();
    virtual void ReadLock() = 0;
    virtual void WriteLock() = 0;
    virtual void ReadUnlock() = 0;
    virtual void WriteUnlock() = 0;
};

// Recursive for the owning thread: a second Lock only raises the count.
class ZELTYPES_API CZelMutex : public CZelLock
{
public:
    CZelMutex();
    ~CZelMutex() override;
    CZelMutex(const CZelMutex&) = delete;
    CZelMutex& operator=(const CZelMutex&) = delete;

    void Lock() override;
    void Unlock() override;

private:
    boost::recursive_mutex m_Mutex;
};

// Readers and writers take the same recursive mutex, so readers exclude each
// other too; nothing in the library needs shared reading.
class ZELTYPES_API CZelReaderWriterLock : public IZelReaderWriterLock
{
public:
    CZelReaderWriterLock();
    ~CZelReaderWriterLock() override;
    CZelReaderWriterLock(const CZelReaderWriterLock&) = delete;
    CZelReaderWriterLock& operator=(const CZelReaderWriterLock&) = delete;

    void ReadLock() override;
    void WriteLock() override;
    void ReadUnlock() override;
    void WriteUnlock() override;

private:
    boost::recursive_mutex m_Mutex;
};

class ZELTYPES_API CZelGuard
{
public:
    explicit CZelGuard(CZelLock& rLock);
    virtual ~CZelGuard();
    CZelGuard(const CZelGuard&) = delete;
    CZelGuard& operator=(const CZelGuard&) = delete;

private:
    CZelLock& m_rLock;
};

// The library's one static lock beside the frequency manager's; free for the
// library's own once-only work that needs exclusion.
ZELTYPES_API CZelMutex& GetZelStaticLock();

} // namespace ZELN

#endif
