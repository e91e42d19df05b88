// The recursive-descent parser behind ParseHeader. Every method throws FParseError at the first
// malformed declaration.
#pragma once

#include "Model.h"
#include "Specifiers.h"
#include "TokenCursor.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	struct FSpecifierList
	{
		FKeyValues Specifiers;
		FKeyValues MetaData;     // from meta=(...)
	};

	class FHeaderParser
	{
	public:
		FHeaderParser(const std::vector<FToken>& Tokens, FHeaderModel& InModel);

		void Run();

	private:
		FTokenCursor Cursor;
		FHeaderModel& Model;

		// HeaderParser.cpp: declarations at namespace scope.
		void ParseClass(const FToken& Macro);
		void ParseStruct(const FToken& Macro);
		void ParseEnum(const FToken& Macro);
		void ParseDelegate(const FToken& Macro, const FToken& DocSource, FKeyValues MetaData);
		template <typename TDecl>
		void ParseBody(TDecl& Decl, const FToken& Macro, const FToken& NameToken, bool bClass);
		std::string ParseBaseClause();

		// MemberParser.cpp: members, types and parameters.
		FPropertyDecl ParseProperty(const FToken& Macro);
		FFunctionDecl ParseFunction(const FToken& Macro);
		FParamDecl ParseParam(FTokenCursor& Params, std::vector<FToken>& OutDefault);

		// SpecifierParser.cpp: the parenthesised lists after the macros.
		FSpecifierList ParseSpecifiers(const FToken& Macro, ESpecifierOwner Owner);
		void ParseMetaList(const FToken& Opener, FKeyValues& OutMetaData);
		std::string ParseSpecifierValue();

		FLocation Locate(const FToken& Token) const;
	};

	// const, elaborated keywords, scoped names, template arguments, '*' and '&'.
	FTypeRef ParseType(FTokenCursor& Cursor);
	std::string FormatType(const FTypeRef& Type);

	// Sets Key (replacing an earlier value) keeping first-seen order.
	void SetKeyValue(FKeyValues& Values, const std::string& Key, const std::string& Value);
	const std::string* FindKeyValue(const FKeyValues& Values, std::string_view Key);

	// Metadata in the order the dump shows it: Category, meta=(...), then ToolTip from the doc comment.
	FKeyValues ComposeMetaData(const FSpecifierList& List, const FToken& DocSource);
}
