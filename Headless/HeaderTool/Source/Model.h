// What the header tool parsed from one header: plain structs, no behaviour. The parser fills them,
// the generator reads them, and --dump writes them as JSON for the baseline tests.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace HeaderTool
{
	struct FLocation
	{
		std::string File;
		int Line = 0;
		int Column = 0;
	};

	// Ordered key/value list; keys are unique. Used for specifiers (value empty for a bare flag such
	// as EditAnywhere) and for metadata (Category, ToolTip, ClampMin, CPP_Default_Quantity, ...).
	using FKeyValues = std::vector<std::pair<std::string, std::string>>;

	// A C++ type as written, taken apart: "const TArray<TObjectPtr<UWidget>>&" has Name "TArray",
	// one template argument, bConst and bReference.
	struct FTypeRef
	{
		std::string Text;                    // normalised spelling, single spaces: "const FQuorvelItemInstance&"
		std::string Name;                    // "int32", "FString", "TArray", "UQuorvelStashPanel", "EQuorvelContainerLayout"
		std::vector<FTypeRef> TemplateArgs;
		bool bConst = false;
		bool bPointer = false;
		bool bReference = false;
	};

	struct FPropertyDecl
	{
		std::string Name;
		FTypeRef Type;
		std::string ArrayDim;                // "" for a scalar; the bracket text for a fixed array: "3", "EFoo::Count"
		FKeyValues Specifiers;               // EditAnywhere, BlueprintReadWrite, Category, Instanced, ...
		FKeyValues MetaData;                 // meta=(...) plus Category and ToolTip (from the doc comment)
		std::string Access;                  // "public", "protected" or "private"
		FLocation Location;
	};

	struct FParamDecl
	{
		std::string Name;
		FTypeRef Type;
		std::string DefaultValue;            // the C++ default argument as written, "" when none
		FLocation Location;
	};

	struct FFunctionDecl
	{
		std::string Name;
		FTypeRef ReturnType;                 // Name "void" when nothing is returned
		std::vector<FParamDecl> Params;
		FKeyValues Specifiers;               // BlueprintCallable, BlueprintPure, BlueprintImplementableEvent, ...
		FKeyValues MetaData;                 // Category, ToolTip, CPP_Default_<Param>, meta=(...)
		std::string Access;
		bool bConst = false;
		bool bStatic = false;
		bool bVirtual = false;
		FLocation Location;
	};

	struct FEnumValueDecl
	{
		std::string Name;                    // as declared, without the enum's scope: "Grid"
		std::string Value;                   // explicit initialiser as written, "" when implicit
		FKeyValues MetaData;                 // UMETA(...) plus ToolTip
		FLocation Location;
	};

	struct FEnumDecl
	{
		std::string Name;
		std::string UnderlyingType;          // "uint8", "" when not given
		bool bEnumClass = false;
		std::string Namespace;               // for the engine's "namespace EFoo { enum Type {...}; }" form; "" otherwise
		std::vector<FEnumValueDecl> Values;
		FKeyValues Specifiers;               // BlueprintType, ...
		FKeyValues MetaData;
		FLocation Location;
	};

	struct FStructDecl
	{
		std::string Name;                    // "FQuorvelItemInstance"
		std::string SuperName;               // "" when it derives from nothing
		std::string ApiMacro;                // "QUORVELCORE_API" or ""
		FKeyValues Specifiers;
		FKeyValues MetaData;
		std::vector<FPropertyDecl> Properties;
		int GeneratedBodyLine = 0;
		FLocation Location;
	};

	struct FClassDecl
	{
		std::string Name;                    // "UQuorvelStashPanel"
		std::string SuperName;               // "UUserWidget"
		std::string ApiMacro;
		bool bInterface = false;             // UINTERFACE
		FKeyValues Specifiers;               // Abstract, Blueprintable, config=Game, defaultconfig, ...
		FKeyValues MetaData;                 // DisplayName, ToolTip, ...
		std::vector<FPropertyDecl> Properties;
		std::vector<FFunctionDecl> Functions;
		bool bDeclaresConstructor = false;   // any constructor of its own; otherwise the tool writes the initializer one
		int GeneratedBodyLine = 0;
		FLocation Location;
	};

	// DECLARE_DYNAMIC_[MULTICAST_]DELEGATE[_RetVal][_OneParam...]( ... ) at namespace scope, or
	// DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE is not supported.
	struct FDelegateDecl
	{
		std::string Name;                    // "FQuorvelStashLoaded"
		bool bMulticast = false;
		FTypeRef ReturnType;                 // "void" for multicast
		std::vector<FParamDecl> Params;      // type and name of each parameter, in order
		FKeyValues MetaData;                 // ToolTip from the doc comment
		int Line = 0;                        // line of the macro: the generated header keys its body macro on it
		FLocation Location;
	};

	struct FHeaderModel
	{
		std::string Path;                    // as given on the command line
		std::string BaseName;                // "QuorvelStashPanel" (the generated files are BaseName.generated.h/.gen.cpp)
		std::string FileId;                  // CURRENT_FILE_ID value: "FID_" + path made an identifier
		std::vector<FEnumDecl> Enums;
		std::vector<FStructDecl> Structs;
		std::vector<FClassDecl> Classes;
		std::vector<FDelegateDecl> Delegates;
	};

	struct FModuleModel
	{
		std::string ModuleName;              // "QuorvelUI"; the package is "/Script/" + ModuleName
		std::vector<FHeaderModel> Headers;   // in command-line order
	};
}
