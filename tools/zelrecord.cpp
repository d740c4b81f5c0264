// zelrecord: the record inspector. Turns a record's binary image into its
// tagged text line and back, lists the kinds of records, and names the
// kinds whose reader takes a given image.
//
//   zelrecord [OPTIONS] list
//   zelrecord [OPTIONS] text KIND [FILE|-]
//   zelrecord [OPTIONS] image KIND [FILE|-]
//   zelrecord [OPTIONS] guess FILE
#include "ZelRecordRegistry.h"

#include <ZelTypes/Core/Common/ZelAssert.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

using namespace ZelTools;

namespace
{

const char* const c_szUsage =
    "Usage: zelrecord [OPTIONS] list\n"
    "       zelrecord [OPTIONS] text KIND [FILE|-]\n"
    "       zelrecord [OPTIONS] image KIND [FILE|-]\n"
    "       zelrecord [OPTIONS] guess FILE\n"
    "The record inspector of the ZelTypes library.\n"
    "\n"
    "Commands:\n"
    "  list               every kind of record with a binary image: its name, its\n"
    "                     family (Core or Ext), the image sizes of a default and of\n"
    "                     a sample record, and whether it has a text line\n"
    "  text KIND [FILE]   the binary images in FILE (standard input when FILE is\n"
    "                     '-' or missing), back to back, each to its text line\n"
    "  image KIND [FILE]  the text lines in FILE, one record per line, to their\n"
    "                     binary images, back to back\n"
    "  guess FILE         every kind whose reader takes exactly the bytes of FILE\n"
    "\n"
    "Options:\n"
    "  --hex              images as hexadecimal text (two digits a byte, blanks\n"
    "                     and new lines ignored on input; one line a record on\n"
    "                     output)\n"
    "  -p DIGITS          precision of the text, for the values whose record sets\n"
    "                     none (1-17, default 17, which reads back exactly)\n"
    "  --strict           a tag word that differs from the kind's own is an error\n"
    "                     (by default a warning: readers do not look at tags)\n"
    "  --verbose          the reports of the library's checks go to stderr\n"
    "  -h, --help         this text\n"
    "\n"
    "Exit status: 0 success, 1 bad input (one ERROR line on stderr), 2 bad usage.\n";

constexpr int c_iEXIT_OK = 0;
constexpr int c_iEXIT_BAD_INPUT = 1;
constexpr int c_iEXIT_USAGE = 2;

struct SBadInput
{
    std::string strMessage;
};

struct SBadUsage
{
    std::string strMessage;
};

bool s_bVerbose = false;
int s_iReports = 0;

// The library's checks: counted, and shown with --verbose. The source
// path is cut to its file name.
bool ReportHook(const char* szExpression, const char* szFile, int iLine)
{
    ++s_iReports;
    if (s_bVerbose)
    {
        std::string strFile = szFile != nullptr ? szFile : "";
        const size_t ulSlash = strFile.find_last_of('/');
        if (ulSlash != std::string::npos)
        {
            strFile.erase(0, ulSlash + 1);
        }
        std::cerr << "zelrecord: check failed: " << szExpression << " (" << strFile << ":" << iLine << ")\n";
    }
    return true;
}

struct SOptions
{
    bool bHex = false;
    bool bStrict = false;
    int iPrecision = 17;
};

std::string ReadAll(const std::string& strPath)
{
    if (strPath == "-")
    {
        std::ostringstream oss;
        oss << std::cin.rdbuf();
        if (std::cin.bad())
        {
            throw SBadInput{"cannot read standard input"};
        }
        return oss.str();
    }
    std::ifstream ifs(strPath, std::ios::binary);
    if (!ifs)
    {
        throw SBadInput{"cannot open '" + strPath + "'"};
    }
    return std::string(std::istreambuf_iterator<char>(ifs), std::istreambuf_iterator<char>());
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
    {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f')
    {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F')
    {
        return c - 'A' + 10;
    }
    return -1;
}

std::vector<unsigned char> Bytes(const std::string& strData, bool bHex)
{
    if (!bHex)
    {
        return std::vector<unsigned char>(strData.begin(), strData.end());
    }
    std::vector<unsigned char> vecBytes;
    int iHigh = -1;
    for (size_t ul = 0; ul < strData.size(); ++ul)
    {
        const char c = strData[ul];
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r')
        {
            continue;
        }
        const int iDigit = HexDigit(c);
        if (iDigit < 0)
        {
            throw SBadInput{"'" + std::string(1, c) + "' at offset " + std::to_string(ul) +
                            " is not a hexadecimal digit"};
        }
        if (iHigh < 0)
        {
            iHigh = iDigit;
        }
        else
        {
            vecBytes.push_back(static_cast<unsigned char>(iHigh * 16 + iDigit));
            iHigh = -1;
        }
    }
    if (iHigh >= 0)
    {
        throw SBadInput{"the hexadecimal input has an odd number of digits"};
    }
    return vecBytes;
}

void WriteImage(const std::vector<unsigned char>& vecImage, bool bHex)
{
    if (bHex)
    {
        static const char c_acDigits[] = "0123456789abcdef";
        std::string strLine;
        for (unsigned char uc : vecImage)
        {
            strLine += c_acDigits[uc >> 4];
            strLine += c_acDigits[uc & 15];
        }
        std::cout << strLine << "\n";
    }
    else
    {
        std::cout.write(reinterpret_cast<const char*>(vecImage.data()),
                        static_cast<std::streamsize>(vecImage.size()));
    }
}

const SRecordKind& Kind(const std::string& strName)
{
    const SRecordKind* pKind = FindRecordKind(strName);
    if (pKind == nullptr)
    {
        throw SBadUsage{"unknown kind '" + strName + "' ('zelrecord list' shows the kinds)"};
    }
    return *pKind;
}

// Reads one record of the kind from the front of the bytes; the number of
// bytes its image takes, or 0 when the reader refuses them.
uint64_t LoadOne(IRecordBox& rBox, const unsigned char* pData, uint64_t ulLength)
{
    uint64_t ulCount = 0;
    if (!rBox.Load(pData, ulLength, &ulCount))
    {
        return 0;
    }
    // Ext readers give no count: the image of what they read tells it.
    const uint64_t ulTaken = ulCount != 0 ? ulCount : rBox.Size();
    return ulTaken <= ulLength ? ulTaken : 0;
}

std::string Plural(uint64_t ul, const char* szWord)
{
    return std::to_string(ul) + " " + szWord + (ul == 1 ? "" : "s");
}

int List()
{
    std::cout << std::left << std::setw(32) << "KIND" << std::setw(8) << "FAMILY" << std::right
              << std::setw(9) << "DEFAULT" << std::setw(9) << "SAMPLE"
              << "  TEXT\n";
    for (const SRecordKind& rKind : RecordKinds())
    {
        const std::unique_ptr<IRecordBox> pDefault = rKind.fnMake();
        const std::unique_ptr<IRecordBox> pSample = rKind.fnSample();
        std::cout << std::left << std::setw(32) << rKind.strName << std::setw(8)
                  << (rKind.eFamily == eFAMILY_CORE ? "Core" : "Ext") << std::right << std::setw(9)
                  << pDefault->Size() << std::setw(9) << pSample->Size() << "  "
                  << (pDefault->HasText() ? "yes" : "no") << "\n";
    }
    return c_iEXIT_OK;
}

int Text(const SRecordKind& rKind, const std::string& strPath, const SOptions& rOptions)
{
    if (!rKind.fnMake()->HasText())
    {
        throw SBadUsage{"kind " + rKind.strName + " has no text line"};
    }
    const std::vector<unsigned char> vecBytes = Bytes(ReadAll(strPath), rOptions.bHex);
    if (vecBytes.empty())
    {
        throw SBadInput{"the input is empty"};
    }
    std::ostringstream oss;
    uint64_t ulOffset = 0;
    while (ulOffset < vecBytes.size())
    {
        const std::unique_ptr<IRecordBox> pBox = rKind.fnMake();
        const uint64_t ulLeft = vecBytes.size() - ulOffset;
        const uint64_t ulTaken = LoadOne(*pBox, vecBytes.data() + ulOffset, ulLeft);
        if (ulTaken == 0)
        {
            const uint64_t ulDefault = rKind.fnMake()->Size();
            std::string strWhy = "the " + Plural(ulLeft, "byte") + " at offset " + std::to_string(ulOffset) +
                                 " do not read as " + rKind.strName;
            if (ulLeft < ulDefault)
            {
                strWhy += " (its image takes at least " + Plural(ulDefault, "byte") + ")";
            }
            if (s_iReports != 0 && !s_bVerbose)
            {
                strWhy += "; --verbose shows the library's reports";
            }
            throw SBadInput{strWhy};
        }
        oss << std::setprecision(rOptions.iPrecision);
        pBox->WriteText(oss);
        oss << "\n";
        ulOffset += ulTaken;
    }
    std::cout << oss.str();
    return c_iEXIT_OK;
}

// The blank-separated words of a text line.
std::vector<std::string> Words(const std::string& strLine)
{
    std::vector<std::string> vecWords;
    std::istringstream iss(strLine);
    std::string strWord;
    while (iss >> strWord)
    {
        vecWords.push_back(strWord);
    }
    return vecWords;
}

// A word that starts with a letter is a tag or an enumeration word; the
// others are values, whose spelling may differ with the precision.
bool IsWord(const std::string& strWord)
{
    const char c = strWord.empty() ? '\0' : strWord[0];
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// The first word of the input that the kind writes otherwise, where both
// are words; empty when none.
std::string DifferentTag(const std::string& strInput, const std::string& strOwn)
{
    const auto vecIn = Words(strInput);
    const auto vecOwn = Words(strOwn);
    for (size_t ul = 0; ul < vecIn.size() && ul < vecOwn.size(); ++ul)
    {
        const std::string& strIn = vecIn[ul];
        const std::string& strMine = vecOwn[ul];
        if (IsWord(strIn) && IsWord(strMine) && strIn != strMine)
        {
            return "word " + std::to_string(ul + 1) + " is '" + strIn + "' where " + "the kind writes '" +
                   strMine + "'";
        }
    }
    return std::string();
}

int Image(const SRecordKind& rKind, const std::string& strPath, const SOptions& rOptions)
{
    if (!rKind.fnMake()->HasText())
    {
        throw SBadUsage{"kind " + rKind.strName + " has no text line"};
    }
    if (!rOptions.bHex && isatty(STDOUT_FILENO))
    {
        throw SBadUsage{"will not write a binary image to a terminal: use --hex or redirect the output"};
    }
    std::istringstream issAll(ReadAll(strPath));
    std::string strLine;
    std::vector<std::vector<unsigned char>> vecImages;
    std::vector<std::string> vecWarnings;
    int iLine = 0;
    while (std::getline(issAll, strLine))
    {
        ++iLine;
        if (strLine.find_first_not_of(" \t\r") == std::string::npos)
        {
            continue;
        }
        const std::string strWhere = "line " + std::to_string(iLine) + ": ";
        const std::unique_ptr<IRecordBox> pBox = rKind.fnMake();
        std::istringstream iss(strLine);
        pBox->ReadText(iss);
        if (iss.fail())
        {
            throw SBadInput{strWhere + "the text does not read as " + rKind.strName};
        }
        std::string strRest;
        if (iss >> strRest)
        {
            throw SBadInput{strWhere + "'" + strRest + "' follows the text of " + rKind.strName};
        }
        std::ostringstream ossOwn;
        ossOwn << std::setprecision(rOptions.iPrecision);
        pBox->WriteText(ossOwn);
        const std::string strDifferent = DifferentTag(strLine, ossOwn.str());
        if (!strDifferent.empty())
        {
            if (rOptions.bStrict)
            {
                throw SBadInput{strWhere + strDifferent};
            }
            vecWarnings.push_back("zelrecord: warning: " + strWhere + strDifferent);
        }
        std::vector<unsigned char> vecImage;
        if (!pBox->Save(vecImage))
        {
            throw SBadInput{strWhere + "the record read does not write as an image"};
        }
        vecImages.push_back(vecImage);
    }
    if (vecImages.empty())
    {
        throw SBadInput{"the input holds no text line"};
    }
    for (const std::string& strWarning : vecWarnings)
    {
        std::cerr << strWarning << "\n";
    }
    for (const std::vector<unsigned char>& vecImage : vecImages)
    {
        WriteImage(vecImage, rOptions.bHex);
    }
    return c_iEXIT_OK;
}

int Guess(const std::string& strPath, const SOptions& rOptions)
{
    const std::vector<unsigned char> vecBytes = Bytes(ReadAll(strPath), rOptions.bHex);
    if (vecBytes.empty())
    {
        throw SBadInput{"the input is empty"};
    }
    std::ostringstream oss;
    for (const SRecordKind& rKind : RecordKinds())
    {
        const std::unique_ptr<IRecordBox> pBox = rKind.fnMake();
        if (LoadOne(*pBox, vecBytes.data(), vecBytes.size()) == vecBytes.size())
        {
            oss << rKind.strName << "\n";
        }
    }
    if (oss.str().empty())
    {
        throw SBadInput{"no kind reads exactly these " + Plural(vecBytes.size(), "byte")};
    }
    std::cout << oss.str();
    return c_iEXIT_OK;
}

int Run(int argc, char** argv)
{
    SOptions stOptions;
    std::vector<std::string> vecArgs;
    bool bOptionsDone = false;
    for (int i = 1; i < argc; ++i)
    {
        const std::string strArg = argv[i];
        if (bOptionsDone || strArg == "-" || strArg.empty() || strArg[0] != '-')
        {
            vecArgs.push_back(strArg);
        }
        else if (strArg == "--")
        {
            bOptionsDone = true;
        }
        else if (strArg == "-h" || strArg == "--help")
        {
            std::cout << c_szUsage;
            return c_iEXIT_OK;
        }
        else if (strArg == "--hex")
        {
            stOptions.bHex = true;
        }
        else if (strArg == "--strict")
        {
            stOptions.bStrict = true;
        }
        else if (strArg == "--verbose")
        {
            s_bVerbose = true;
        }
        else if (strArg == "-p")
        {
            const std::string strValue = i + 1 < argc ? argv[++i] : "";
            const bool bDigits = !strValue.empty() && strValue.size() <= 2 &&
                                 strValue.find_first_not_of("0123456789") == std::string::npos;
            const int iValue = bDigits ? std::stoi(strValue) : 0;
            if (iValue < 1 || iValue > 17)
            {
                throw SBadUsage{"-p takes 1 to 17 digits, not '" + strValue + "'"};
            }
            stOptions.iPrecision = iValue;
        }
        else
        {
            throw SBadUsage{"unknown option '" + strArg + "'"};
        }
    }
    if (vecArgs.empty())
    {
        throw SBadUsage{"give a command: list, text, image or guess"};
    }
    const std::string& strCommand = vecArgs[0];
    if (strCommand == "list" && vecArgs.size() == 1)
    {
        return List();
    }
    if ((strCommand == "text" || strCommand == "image") && (vecArgs.size() == 2 || vecArgs.size() == 3))
    {
        const SRecordKind& rKind = Kind(vecArgs[1]);
        const std::string strPath = vecArgs.size() == 3 ? vecArgs[2] : "-";
        return strCommand == "text" ? Text(rKind, strPath, stOptions) : Image(rKind, strPath, stOptions);
    }
    if (strCommand == "guess" && vecArgs.size() == 2)
    {
        return Guess(vecArgs[1], stOptions);
    }
    if (strCommand == "list" || strCommand == "text" || strCommand == "image" || strCommand == "guess")
    {
        throw SBadUsage{"wrong number of arguments for '" + strCommand + "'"};
    }
    throw SBadUsage{"unknown command '" + strCommand + "'"};
}

} // namespace

int main(int argc, char** argv)
{
    ZELN::SetAssertHandler(&ReportHook);
    try
    {
        const int iExit = Run(argc, argv);
        std::cout.flush();
        if (!std::cout)
        {
            std::cerr << "ERROR: cannot write the output\n";
            return c_iEXIT_BAD_INPUT;
        }
        return iExit;
    }
    catch (const SBadUsage& rError)
    {
        std::cerr << "zelrecord: " << rError.strMessage << "\nTry 'zelrecord --help'.\n";
        return c_iEXIT_USAGE;
    }
    catch (const SBadInput& rError)
    {
        std::cerr << "ERROR: " << rError.strMessage << "\n";
        return c_iEXIT_BAD_INPUT;
    }
    catch (const std::exception& rError)
    {
        std::cerr << "ERROR: " << rError.what() << "\n";
        return c_iEXIT_BAD_INPUT;
    }
}
