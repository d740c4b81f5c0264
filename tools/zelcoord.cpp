// zelcoord: earth-centred X, Y, Z to geodetic latitude, longitude and
// height on WGS 84, and back with -r, one line in, one line out.
//
//   zelcoord [-r] [-p DIGITS] [--rotation] [--input-string TEXT]
//
// A line that does not convert gives an "ERROR: ..." line in its place, so
// that output lines stay beside their input lines, and the tool goes on;
// the exit status is then 1, with a count of the bad lines on stderr.
#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

const char* const c_szUsage =
    "Usage: zelcoord [-r] [-p DIGITS] [--rotation] [--input-string TEXT]\n"
    "Converts earth-centred cartesian coordinates X Y Z (metres) to geodetic\n"
    "latitude, longitude (degrees, north and east positive) and ellipsoidal\n"
    "height (metres) on WGS 84, one point per line; -r converts the other way.\n"
    "Reads standard input, or TEXT with its points separated by ';' or new\n"
    "lines. The three values of a point are separated by blanks or commas.\n"
    "\n"
    "Options:\n"
    "  -r                   latitude longitude height in, X Y Z out\n"
    "  -p DIGITS            decimals of metres (0-9, default 3); degrees and the\n"
    "                       rotation get DIGITS + 6\n"
    "  --rotation           append the rotation from earth-centred to local north,\n"
    "                       east, up: nine values, row by row (north, east, up)\n"
    "  --input-string TEXT  convert TEXT instead of standard input\n"
    "  -h, --help           this text\n"
    "\n"
    "A line that does not convert is answered by an 'ERROR: ...' line in its\n"
    "place, and the tool goes on with the next line.\n"
    "Exit status: 0 success, 1 one line or more did not convert, 2 bad usage.\n";

constexpr int c_iEXIT_OK = 0;
constexpr int c_iEXIT_BAD_INPUT = 1;
constexpr int c_iEXIT_USAGE = 2;

constexpr double c_dPI = 3.14159265358979323846;
constexpr double c_dDEG_PER_RAD = 180.0 / c_dPI;

struct SBadUsage
{
    std::string strMessage;
};

int s_iReports = 0;
std::string s_strFirstReport;

bool CountReport(const char* szExpression, const char*, int)
{
    if (s_iReports++ == 0)
    {
        s_strFirstReport = szExpression;
    }
    return true;
}

bool ParseDouble(const std::string& strWord, double& rdValue)
{
    if (strWord.empty())
    {
        return false;
    }
    errno = 0;
    char* pEnd = nullptr;
    rdValue = std::strtod(strWord.c_str(), &pEnd);
    return errno == 0 && pEnd == strWord.c_str() + strWord.size() && std::isfinite(rdValue);
}

// A value with its decimals; a rounded negative zero prints as zero.
std::string Fixed(double dValue, int iDecimals)
{
    char szText[64];
    std::snprintf(szText, sizeof(szText), "%.*f", iDecimals, dValue);
    std::string strText = szText;
    if (strText[0] == '-' && strText.find_first_not_of("-0.") == std::string::npos)
    {
        strText.erase(0, 1);
    }
    return strText;
}

struct SOptions
{
    bool bReverse = false;
    bool bRotation = false;
    int iDigits = 3;
};

// One input line to its output line; false with the message of an ERROR line.
bool ConvertLine(const std::string& strLine, const SOptions& rOptions, std::string& rstrOut)
{
    std::string strSpaced = strLine;
    for (char& c : strSpaced)
    {
        if (c == ',' || c == '\t' || c == '\r')
        {
            c = ' ';
        }
    }
    std::istringstream iss(strSpaced);
    std::vector<std::string> vecWords;
    std::string strWord;
    while (iss >> strWord)
    {
        vecWords.push_back(strWord);
    }
    if (vecWords.size() != 3)
    {
        rstrOut = "expected 3 values, found " + std::to_string(vecWords.size());
        return false;
    }
    double adIn[3] = {0.0, 0.0, 0.0};
    for (size_t ul = 0; ul < 3; ++ul)
    {
        if (!ParseDouble(vecWords[ul], adIn[ul]))
        {
            rstrOut = "'" + vecWords[ul] + "' is not a finite number";
            return false;
        }
    }
    // The library leaves its outputs as they were when a point has no
    // conversion: start from NaN to see it.
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    double adOut[3] = {dNaN, dNaN, dNaN};
    double adRotation[c_ulNB_ROTATION_VALUES];
    for (double& d : adRotation)
    {
        d = dNaN;
    }
    const int iReportsBefore = s_iReports;
    if (rOptions.bReverse)
    {
        if (!(std::fabs(adIn[0]) <= 90.0))
        {
            rstrOut = "latitude " + vecWords[0] + " is outside -90 to 90 degrees";
            return false;
        }
        if (!(std::fabs(adIn[1]) <= 540.0))
        {
            rstrOut = "longitude " + vecWords[1] + " is outside -540 to 540 degrees";
            return false;
        }
        ConvGeographicToCartesian(adIn[0] / c_dDEG_PER_RAD, adIn[1] / c_dDEG_PER_RAD, adIn[2], adOut[0],
                                  adOut[1], adOut[2], adRotation);
    }
    else
    {
        ConvCartesianToGeographic(adIn[0], adIn[1], adIn[2], adOut[0], adOut[1], adOut[2], adRotation);
        if (std::isnan(adOut[0]))
        {
            rstrOut = "a point on the polar axis has no conversion";
            return false;
        }
    }
    if (s_iReports != iReportsBefore)
    {
        rstrOut = "the library reported \"" + s_strFirstReport + "\" for this point";
        return false;
    }
    if (!std::isfinite(adOut[0]) || !std::isfinite(adOut[1]) || !std::isfinite(adOut[2]))
    {
        rstrOut = "the point has no finite conversion";
        return false;
    }
    const int iMetres = rOptions.iDigits;
    const int iDegrees = rOptions.iDigits + 6;
    if (rOptions.bReverse)
    {
        rstrOut = Fixed(adOut[0], iMetres) + " " + Fixed(adOut[1], iMetres) + " " + Fixed(adOut[2], iMetres);
    }
    else
    {
        rstrOut = Fixed(adOut[0] * c_dDEG_PER_RAD, iDegrees) + " " +
                  Fixed(adOut[1] * c_dDEG_PER_RAD, iDegrees) + " " + Fixed(adOut[2], iMetres);
    }
    if (rOptions.bRotation)
    {
        // The library leaves out the east row's constant zero (east z).
        const double adMatrix[9] = {adRotation[0], adRotation[1], adRotation[2], adRotation[3], adRotation[4],
                                    0.0,           adRotation[5], adRotation[6], adRotation[7]};
        for (double d : adMatrix)
        {
            rstrOut += " " + Fixed(d, iDegrees);
        }
    }
    return true;
}

int Run(int argc, char** argv)
{
    SOptions stOptions;
    bool bHaveString = false;
    std::string strInput;
    for (int i = 1; i < argc; ++i)
    {
        const std::string strArg = argv[i];
        auto fnValue = [&]() -> std::string
        {
            if (i + 1 >= argc)
            {
                throw SBadUsage{"option " + strArg + " needs a value"};
            }
            return argv[++i];
        };
        if (strArg == "-h" || strArg == "--help")
        {
            std::cout << c_szUsage;
            return c_iEXIT_OK;
        }
        else if (strArg == "-r")
        {
            stOptions.bReverse = true;
        }
        else if (strArg == "--rotation")
        {
            stOptions.bRotation = true;
        }
        else if (strArg == "-p")
        {
            const std::string strValue = fnValue();
            if (strValue.size() != 1 || strValue[0] < '0' || strValue[0] > '9')
            {
                throw SBadUsage{"-p takes 0 to 9 digits, not '" + strValue + "'"};
            }
            stOptions.iDigits = strValue[0] - '0';
        }
        else if (strArg == "--input-string")
        {
            strInput = fnValue();
            bHaveString = true;
        }
        else
        {
            throw SBadUsage{"unknown argument '" + strArg + "'"};
        }
    }
    std::istringstream issString;
    if (bHaveString)
    {
        for (char& c : strInput)
        {
            if (c == ';')
            {
                c = '\n';
            }
        }
        issString.str(strInput);
    }
    std::istream& rIn = bHaveString ? static_cast<std::istream&>(issString) : std::cin;
    std::string strLine;
    long lBad = 0;
    long lLine = 0;
    while (std::getline(rIn, strLine))
    {
        ++lLine;
        std::string strOut;
        if (ConvertLine(strLine, stOptions, strOut))
        {
            std::cout << strOut << "\n";
        }
        else
        {
            std::cout << "ERROR: line " << lLine << ": " << strOut << "\n";
            ++lBad;
        }
    }
    std::cout.flush();
    if (rIn.bad() || !std::cout)
    {
        std::cerr << "ERROR: cannot read the input or write the output\n";
        return c_iEXIT_BAD_INPUT;
    }
    if (lBad != 0)
    {
        std::cerr << "ERROR: " << lBad << " of " << lLine << " lines did not convert\n";
        return c_iEXIT_BAD_INPUT;
    }
    return c_iEXIT_OK;
}

} // namespace

int main(int argc, char** argv)
{
    SetAssertHandler(&CountReport);
    try
    {
        return Run(argc, argv);
    }
    catch (const SBadUsage& rError)
    {
        std::cerr << "zelcoord: " << rError.strMessage << "\nTry 'zelcoord --help'.\n";
        return c_iEXIT_USAGE;
    }
    catch (const std::exception& rError)
    {
        std::cerr << "ERROR: " << rError.what() << "\n";
        return c_iEXIT_BAD_INPUT;
    }
}
