#ifndef ZELTYPES_TESTS_ZELTESTHOOKS_H
#define ZELTYPES_TESTS_ZELTESTHOOKS_H

// A recording assertion hook for tests: installed for the lifetime of the
// object, restoring the previous hook afterwards.

#include <ZelTypes/Core/Common/ZelAssert.h>

#include <string>
#include <vector>

namespace ZelTest
{

struct SReport
{
    std::string strExpression;
    std::string strFile;
    int iLine;
};

class CRecordingHook
{
public:
    explicit CRecordingHook(bool bResult = true)
    {
        m_Previous = ZELN::SetAssertHandler(
            [this, bResult](const char* szExpr, const char* szFile, int iLine)
            {
                m_vecReports.push_back({szExpr, szFile, iLine});
                return bResult;
            });
    }
    ~CRecordingHook() { ZELN::SetAssertHandler(m_Previous); }
    CRecordingHook(const CRecordingHook&) = delete;
    CRecordingHook& operator=(const CRecordingHook&) = delete;

    size_t Count() const { return m_vecReports.size(); }
    const std::vector<SReport>& Reports() const { return m_vecReports; }
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> vec;
        for (const auto& r : m_vecReports)
        {
            vec.push_back(r.strExpression);
        }
        return vec;
    }
    void Clear() { m_vecReports.clear(); }

private:
    ZELN::ZelAssertHandler m_Previous;
    std::vector<SReport> m_vecReports;
};

} // namespace ZelTest

#endif
