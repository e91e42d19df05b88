#include "HeaderParser.h"

#include "DocComment.h"

namespace HeaderTool
{
	void SetKeyValue(FKeyValues& Values, const std::string& Key, const std::string& Value)
	{
		for (auto& [ExistingKey, ExistingValue] : Values)
		{
			if (ExistingKey == Key)
			{
				ExistingValue = Value;
				return;
			}
		}
		Values.emplace_back(Key, Value);
	}

	const std::string* FindKeyValue(const FKeyValues& Values, std::string_view Key)
	{
		for (const auto& [ExistingKey, ExistingValue] : Values)
		{
			if (EqualsIgnoreCase(ExistingKey, Key))
			{
				return &ExistingValue;
			}
		}
		return nullptr;
	}

	FKeyValues ComposeMetaData(const FSpecifierList& List, const FToken& DocSource)
	{
		FKeyValues MetaData;
		if (const std::string* Category = FindKeyValue(List.Specifiers, "Category"))
		{
			MetaData.emplace_back("Category", *Category);
		}
		for (const auto& [Key, Value] : List.MetaData)
		{
			SetKeyValue(MetaData, Key, Value);
		}
		const std::string ToolTip = CleanDocComment(DocSource.Comment);
		if (!ToolTip.empty())
		{
			SetKeyValue(MetaData, "ToolTip", ToolTip);
		}
		return MetaData;
	}

	FSpecifierList FHeaderParser::ParseSpecifiers(const FToken& Macro, ESpecifierOwner Owner)
	{
		FSpecifierList List;
		Cursor.Expect("(", "after " + Macro.Text);
		if (Cursor.Test(")"))
		{
			return List;
		}
		const std::string NotClosed = Macro.Text + "( is not closed";
		while (true)
		{
			if (Cursor.AtEnd())
			{
				FTokenCursor::Fail(Macro, NotClosed);
			}
			const FToken& Key = Cursor.ExpectIdentifier("a specifier in " + Macro.Text + "(...)");
			if (EqualsIgnoreCase(Key.Text, "meta"))
			{
				Cursor.Expect("=", "after meta");
				ParseMetaList(Key, List.MetaData);
			}
			else
			{
				if (!IsKnownSpecifier(Owner, Key.Text))
				{
					FTokenCursor::Fail(Key, "unknown " + std::string(MacroName(Owner)) + " specifier '" + Key.Text + "'");
				}
				std::string Value;
				if (Cursor.Test("="))
				{
					Value = ParseSpecifierValue();
				}
				SetKeyValue(List.Specifiers, Key.Text, Value);
			}
			if (Cursor.Test(")"))
			{
				return List;
			}
			if (!Cursor.Test(","))
			{
				FTokenCursor::Fail(Macro, NotClosed);
			}
		}
	}

	void FHeaderParser::ParseMetaList(const FToken& Opener, FKeyValues& OutMetaData)
	{
		const std::string What = Opener.Is("UMETA") ? "UMETA(" : Opener.Text + "=(";
		Cursor.Expect("(", "after " + (Opener.Is("UMETA") ? Opener.Text : Opener.Text + "="));
		if (Cursor.Test(")"))
		{
			return;
		}
		while (true)
		{
			if (Cursor.AtEnd())
			{
				FTokenCursor::Fail(Opener, What + " is not closed");
			}
			const FToken& Key = Cursor.ExpectIdentifier("a metadata key in " + What + "...)");
			std::string Value;
			if (Cursor.Test("="))
			{
				Value = ParseSpecifierValue();
			}
			SetKeyValue(OutMetaData, Key.Text, Value);
			if (Cursor.Test(")"))
			{
				return;
			}
			if (!Cursor.Test(","))
			{
				FTokenCursor::Fail(Opener, What + " is not closed");
			}
		}
	}

	std::string FHeaderParser::ParseSpecifierValue()
	{
		// A list such as HideCategories=(Input, Rendering) is kept as "Input, Rendering".
		if (Cursor.Check("("))
		{
			const FToken& Open = Cursor.Next();
			std::string Value;
			if (Cursor.Test(")"))
			{
				return Value;
			}
			while (true)
			{
				Value += ParseSpecifierValue();
				if (Cursor.Test(")"))
				{
					return Value;
				}
				if (!Cursor.Test(","))
				{
					FTokenCursor::Fail(Open, "'(' is not closed");
				}
				Value += ", ";
			}
		}
		std::string Value;
		if (Cursor.Check("-") || Cursor.Check("+"))
		{
			Value = Cursor.Next().Text;
		}
		const FToken& First = Cursor.Peek();
		if (First.Kind == ETokenKind::Symbol || First.Kind == ETokenKind::End)
		{
			FTokenCursor::Fail(First, "expected a value" + std::string(First.Kind == ETokenKind::End ? "" : ", found '" + First.Text + "'"));
		}
		Value += Unquote(Cursor.Next());
		// Unquoted paths and scoped names: Category=Tollmere|Identity, Within=Engine.World.
		while ((Cursor.Check("|") || Cursor.Check(".") || Cursor.Check("::")) && Cursor.Peek(1).Kind != ETokenKind::Symbol
			&& Cursor.Peek(1).Kind != ETokenKind::End)
		{
			Value += Cursor.Next().Text;
			Value += Unquote(Cursor.Next());
		}
		return Value;
	}
}
