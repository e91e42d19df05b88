#include "GeneratorTypes.h"

#include <cctype>
#include <map>

namespace HeaderTool
{
	namespace
	{
		bool IsObjectClassName(const std::string& Name)
		{
			return Name.size() > 1 && (Name[0] == 'U' || Name[0] == 'A') && std::isupper(static_cast<unsigned char>(Name[1]));
		}

		const std::map<std::string, std::string>& PropertyClasses()
		{
			static const std::map<std::string, std::string> Classes = {
				{"int8", "FInt8Property"}, {"int16", "FInt16Property"}, {"int32", "FIntProperty"}, {"int64", "FInt64Property"},
				{"uint8", "FByteProperty"}, {"uint16", "FUInt16Property"}, {"uint32", "FUInt32Property"}, {"uint64", "FUInt64Property"},
				{"float", "FFloatProperty"}, {"double", "FDoubleProperty"}, {"FString", "FStrProperty"}, {"FName", "FNameProperty"},
				{"FText", "FTextProperty"}};
			return Classes;
		}
	}

	std::string ValueTypeText(const FTypeRef& Type)
	{
		std::string Text = Type.Text;
		if (Type.bReference && !Text.empty() && Text.back() == '&')
		{
			Text.pop_back();
			while (!Text.empty() && Text.back() == ' ')
			{
				Text.pop_back();
			}
		}
		// "const T&" and "const T" store a plain T, which the block can be filled into; "const T*" keeps
		// its const (it belongs to the pointee).
		if (!Type.bPointer && Text.rfind("const ", 0) == 0)
		{
			Text = Text.substr(6);
		}
		return Text;
	}

	std::string ReferencedClassName(const FTypeRef& Type)
	{
		static const char* Wrappers[] = {"TObjectPtr", "TWeakObjectPtr", "TSoftObjectPtr", "TLazyObjectPtr", "TSubclassOf"};
		if (Type.Name == "TArray" && Type.TemplateArgs.size() == 1)
		{
			return ReferencedClassName(Type.TemplateArgs[0]);
		}
		for (const char* Wrapper : Wrappers)
		{
			if (Type.Name == Wrapper && Type.TemplateArgs.size() == 1 && IsObjectClassName(Type.TemplateArgs[0].Name))
			{
				return Type.TemplateArgs[0].Name;
			}
		}
		if (Type.bPointer && IsObjectClassName(Type.Name) && Type.Name != "UClass")
		{
			return Type.Name;
		}
		return "";
	}

	FThunkRead ThunkRead(const FParamDecl& Param)
	{
		const FTypeRef& Type = Param.Type;
		const bool bOut = Type.bReference && !Type.bConst;
		const std::string ValueName = "Z_Param_" + Param.Name;
		const std::string OutName = "Z_Param_Out_" + Param.Name;
		const std::string Value = ValueTypeText(Type);
		FThunkRead Read;
		auto Property = PropertyClasses().find(Type.Name);
		if (Type.Name == "bool" && !Type.bPointer)
		{
			Read.Argument = bOut ? OutName : ValueName;
			Read.Statement = bOut ? "P_GET_UBOOL_REF(" + OutName + ");" : "P_GET_UBOOL(" + ValueName + ");";
		}
		else if (Property != PropertyClasses().end() && !Type.bPointer)
		{
			Read.Argument = bOut ? OutName : ValueName;
			Read.Statement = (bOut ? "P_GET_PROPERTY_REF(" : "P_GET_PROPERTY(") + Property->second + ", " + Read.Argument + ");";
		}
		else if (Type.bPointer && IsObjectClassName(Type.Name))
		{
			Read.Argument = bOut ? OutName : ValueName;
			Read.Statement = (bOut ? "P_GET_OBJECT_REF(" : "P_GET_OBJECT(") + Type.Name + ", " + Read.Argument + ");";
		}
		else if (Type.Name == "TArray" && Type.TemplateArgs.size() == 1)
		{
			const bool bRef = Type.bReference;
			Read.Argument = bRef ? OutName : ValueName;
			Read.Statement = (bRef ? "P_GET_TARRAY_REF(" : "P_GET_TARRAY(") + Type.TemplateArgs[0].Text + ", " + Read.Argument + ");";
		}
		else if (Type.Name.size() > 1 && Type.Name[0] == 'E' && std::isupper(static_cast<unsigned char>(Type.Name[1])) && !Type.bPointer)
		{
			Read.Argument = bOut ? OutName : ValueName;
			Read.Statement = (bOut ? "P_GET_ENUM_REF(" : "P_GET_ENUM(") + Value + ", " + Read.Argument + ");";
		}
		else
		{
			// Structs and everything else: read through the parameter's own property.
			const bool bRef = Type.bReference;
			Read.Argument = bRef ? OutName : ValueName;
			Read.Statement = (bRef ? "P_GET_STRUCT_REF(" : "P_GET_STRUCT(") + Value + ", " + Read.Argument + ");";
		}
		return Read;
	}

	std::string WithoutPrefix(const std::string& Name)
	{
		return Name.size() > 1 ? Name.substr(1) : Name;
	}

	std::string TextLiteral(const std::string& Value)
	{
		std::string Result = "TEXT(\"";
		for (char Char : Value)
		{
			switch (Char)
			{
			case '"':
				Result += "\\\"";
				break;
			case '\\':
				Result += "\\\\";
				break;
			case '\n':
				Result += "\\n";
				break;
			case '\r':
				break;
			case '\t':
				Result += "\\t";
				break;
			default:
				Result += Char;
			}
		}
		Result += "\")";
		return Result;
	}
}
