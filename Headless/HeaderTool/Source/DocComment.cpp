#include "DocComment.h"

#include <vector>

namespace HeaderTool
{
	namespace
	{
		std::string_view Trim(std::string_view Text)
		{
			const size_t First = Text.find_first_not_of(" \t\r\f\v");
			if (First == std::string_view::npos)
			{
				return {};
			}
			const size_t Last = Text.find_last_not_of(" \t\r\f\v");
			return Text.substr(First, Last - First + 1);
		}

		std::vector<std::string_view> SplitLines(std::string_view Text)
		{
			std::vector<std::string_view> Lines;
			size_t Start = 0;
			while (true)
			{
				const size_t End = Text.find('\n', Start);
				Lines.push_back(Text.substr(Start, End == std::string_view::npos ? std::string_view::npos : End - Start));
				if (End == std::string_view::npos)
				{
					return Lines;
				}
				Start = End + 1;
			}
		}
	}

	std::string CleanDocComment(std::string_view Comment)
	{
		const bool bBlock = Comment.starts_with("/*");
		if (bBlock)
		{
			Comment.remove_prefix(2);
			while (Comment.starts_with("*"))
			{
				Comment.remove_prefix(1);
			}
			if (Comment.ends_with("*/"))
			{
				Comment.remove_suffix(2);
			}
		}

		std::vector<std::string_view> Lines;
		for (std::string_view Line : SplitLines(Comment))
		{
			Line = Trim(Line);
			if (bBlock)
			{
				while (Line.starts_with("*"))
				{
					Line.remove_prefix(1);
				}
			}
			else
			{
				while (Line.starts_with("/"))
				{
					Line.remove_prefix(1);
				}
			}
			Lines.push_back(Trim(Line));
		}

		size_t First = 0;
		size_t Last = Lines.size();
		while (First < Last && Lines[First].empty())
		{
			++First;
		}
		while (Last > First && Lines[Last - 1].empty())
		{
			--Last;
		}

		std::string Result;
		for (size_t Index = First; Index < Last; ++Index)
		{
			if (Index > First)
			{
				Result += '\n';
			}
			Result += Lines[Index];
		}
		return Result;
	}
}
