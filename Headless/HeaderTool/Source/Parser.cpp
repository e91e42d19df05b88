#include "Parser.h"

#include "HeaderParser.h"
#include "Token.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace HeaderTool
{
	std::string FormatError(const FLocation& Location, const std::string& Message)
	{
		return Location.File + ":" + std::to_string(Location.Line) + ":" + std::to_string(Location.Column) + ": error: " + Message;
	}

	std::string MakeFileId(const std::string& Path)
	{
		const std::filesystem::path Normal = std::filesystem::path(Path).lexically_normal();
		std::vector<std::string> Parts;
		for (const std::filesystem::path& Part : Normal)
		{
			Parts.push_back(Part.string());
		}
		size_t First = 0;
		for (size_t Index = Parts.size(); Index-- > 0;)
		{
			if (Index + 1 < Parts.size() && (Parts[Index] == "Source" || Parts[Index] == "Tests"))
			{
				First = Index + 1;
				break;
			}
		}
		std::string Id = "FID";
		for (size_t Index = First; Index < Parts.size(); ++Index)
		{
			if (Parts[Index] == "/" || Parts[Index].empty())
			{
				continue;
			}
			Id += '_';
			for (char C : Parts[Index])
			{
				Id += std::isalnum(static_cast<unsigned char>(C)) ? C : '_';
			}
		}
		return Id;
	}

	bool ParseHeaderText(const std::string& Path, const std::string& Text, FHeaderModel& OutModel,
		std::vector<std::string>& OutErrors)
	{
		OutModel = FHeaderModel();
		OutModel.Path = Path;
		OutModel.BaseName = std::filesystem::path(Path).stem().string();
		OutModel.FileId = MakeFileId(Path);

		std::vector<FToken> Tokens;
		FTokenizeError TokenizeError;
		if (!Tokenize(Text, Tokens, TokenizeError))
		{
			OutErrors.push_back(FormatError({Path, TokenizeError.Line, TokenizeError.Column}, TokenizeError.Message));
			return false;
		}
		try
		{
			FHeaderParser(Tokens, OutModel).Run();
		}
		catch (const FParseError& Error)
		{
			OutErrors.push_back(FormatError({Path, Error.Line, Error.Column}, Error.Message));
			return false;
		}
		return true;
	}

	bool ParseHeader(const std::string& Path, FHeaderModel& OutModel, std::vector<std::string>& OutErrors)
	{
		std::ifstream File(Path, std::ios::binary);
		if (!File)
		{
			OutErrors.push_back(FormatError({Path, 1, 1}, "cannot read the file"));
			return false;
		}
		std::ostringstream Text;
		Text << File.rdbuf();
		return ParseHeaderText(Path, Text.str(), OutModel, OutErrors);
	}
}
