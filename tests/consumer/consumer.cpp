// A host of the installed library: installs a hook, fails a check, round-trips a time.
#include <ZelTypes/ZelTypesAll.h>

#include <cstdio>

static int s_iReports = 0;

static bool CountReport(const char*, const char*, int)
{
    ++s_iReports;
    return true;
}

int main()
{
    ZELN::SetAssertHandler(&CountReport);
    ZELN::SMjdTime stTime(2100u, 302400.0);
    unsigned char aucImage[16];
    uint64_t ulOffset = 0;
    ZELN::SMjdTime stBack;
    const bool bOk = stTime.saveData(aucImage, sizeof(aucImage), &ulOffset) &&
                     stBack.loadData(aucImage, sizeof(aucImage), &ulOffset) && stBack == stTime;
    const bool bShort = stTime.saveData(aucImage, 15, &ulOffset);
    if (!bOk || bShort || s_iReports != 1)
    {
        std::printf("consumer: FAILED\n");
        return 1;
    }
    std::printf("consumer: ok\n");
    return 0;
}
