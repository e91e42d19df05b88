#include "Parser.h"

#include <cstdio>
#include <functional>

namespace HeaderTool
{
	namespace
	{
		std::string Quote(const std::string& Text)
		{
			std::string Result = "\"";
			for (char C : Text)
			{
				switch (C)
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
				case '\t':
					Result += "\\t";
					break;
				case '\r':
					Result += "\\r";
					break;
				default:
					if (static_cast<unsigned char>(C) < 0x20)
					{
						char Escape[8];
						std::snprintf(Escape, sizeof(Escape), "\\u%04x", C);
						Result += Escape;
					}
					else
					{
						Result += C;
					}
				}
			}
			return Result + "\"";
		}

		// Writes one object at a time; members that hold their type's empty value are left out.
		class FJsonWriter
		{
		public:
			std::string Result;

			void Object(const std::function<void()>& Members)
			{
				Open('{');
				Members();
				Close('}');
			}

			void String(const char* Key, const std::string& Value)
			{
				if (!Value.empty())
				{
					Member(Key);
					Result += Quote(Value);
				}
			}

			void Number(const char* Key, int Value)
			{
				if (Value != 0)
				{
					Member(Key);
					Result += std::to_string(Value);
				}
			}

			void Bool(const char* Key, bool bValue)
			{
				if (bValue)
				{
					Member(Key);
					Result += "true";
				}
			}

			void Location(const FLocation& Value)
			{
				String("Location", std::to_string(Value.Line) + ":" + std::to_string(Value.Column));
			}

			void KeyValues(const char* Key, const FKeyValues& Values)
			{
				if (Values.empty())
				{
					return;
				}
				Member(Key);
				Open('{');
				for (const auto& [Name, Value] : Values)
				{
					Member(Name.c_str());
					Result += Quote(Value);
				}
				Close('}');
			}

			template <typename TItem, typename TWrite>
			void Array(const char* Key, const std::vector<TItem>& Items, TWrite Write)
			{
				if (Items.empty())
				{
					return;
				}
				Member(Key);
				Open('[');
				for (const TItem& Item : Items)
				{
					Element();
					Write(Item);
				}
				Close(']');
			}

			// Names the member whose value the next Object() writes.
			void Member(const char* Key)
			{
				Element();
				Result += Quote(Key) + ": ";
			}

		private:
			std::vector<bool> bFirst;

			void Indent()
			{
				Result += '\n';
				Result.append(bFirst.size() * 2, ' ');
			}

			void Open(char Bracket)
			{
				Result += Bracket;
				bFirst.push_back(true);
			}

			void Close(char Bracket)
			{
				const bool bEmpty = bFirst.back();
				bFirst.pop_back();
				if (!bEmpty)
				{
					Indent();
				}
				Result += Bracket;
			}

			void Element()
			{
				if (!bFirst.back())
				{
					Result += ',';
				}
				bFirst.back() = false;
				Indent();
			}
		};

		void WriteType(FJsonWriter& Writer, const FTypeRef& Type)
		{
			Writer.Object([&]
			{
				Writer.String("Text", Type.Text);
				Writer.String("Name", Type.Name);
				Writer.Array("TemplateArgs", Type.TemplateArgs, [&](const FTypeRef& Arg) { WriteType(Writer, Arg); });
				Writer.Bool("bConst", Type.bConst);
				Writer.Bool("bPointer", Type.bPointer);
				Writer.Bool("bReference", Type.bReference);
			});
		}

		void WriteParams(FJsonWriter& Writer, const std::vector<FParamDecl>& Params)
		{
			Writer.Array("Params", Params, [&](const FParamDecl& Param)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Param.Name);
					Writer.Member("Type");
					WriteType(Writer, Param.Type);
					Writer.String("DefaultValue", Param.DefaultValue);
					Writer.Location(Param.Location);
				});
			});
		}

		void WriteProperties(FJsonWriter& Writer, const std::vector<FPropertyDecl>& Properties)
		{
			Writer.Array("Properties", Properties, [&](const FPropertyDecl& Property)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Property.Name);
					Writer.Member("Type");
					WriteType(Writer, Property.Type);
					Writer.String("ArrayDim", Property.ArrayDim);
					Writer.KeyValues("Specifiers", Property.Specifiers);
					Writer.KeyValues("MetaData", Property.MetaData);
					Writer.String("Access", Property.Access);
					Writer.Location(Property.Location);
				});
			});
		}
	}

	std::string DumpAsJson(const FHeaderModel& Model)
	{
		FJsonWriter Writer;
		Writer.Object([&]
		{
			Writer.String("BaseName", Model.BaseName);
			Writer.String("FileId", Model.FileId);
			Writer.Array("Enums", Model.Enums, [&](const FEnumDecl& Enum)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Enum.Name);
					Writer.String("UnderlyingType", Enum.UnderlyingType);
					Writer.Bool("bEnumClass", Enum.bEnumClass);
					Writer.String("Namespace", Enum.Namespace);
					Writer.KeyValues("Specifiers", Enum.Specifiers);
					Writer.KeyValues("MetaData", Enum.MetaData);
					Writer.Array("Values", Enum.Values, [&](const FEnumValueDecl& Value)
					{
						Writer.Object([&]
						{
							Writer.String("Name", Value.Name);
							Writer.String("Value", Value.Value);
							Writer.KeyValues("MetaData", Value.MetaData);
							Writer.Location(Value.Location);
						});
					});
					Writer.Location(Enum.Location);
				});
			});
			Writer.Array("Structs", Model.Structs, [&](const FStructDecl& Struct)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Struct.Name);
					Writer.String("SuperName", Struct.SuperName);
					Writer.String("ApiMacro", Struct.ApiMacro);
					Writer.KeyValues("Specifiers", Struct.Specifiers);
					Writer.KeyValues("MetaData", Struct.MetaData);
					WriteProperties(Writer, Struct.Properties);
					Writer.Number("GeneratedBodyLine", Struct.GeneratedBodyLine);
					Writer.Location(Struct.Location);
				});
			});
			Writer.Array("Classes", Model.Classes, [&](const FClassDecl& Class)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Class.Name);
					Writer.String("SuperName", Class.SuperName);
					Writer.String("ApiMacro", Class.ApiMacro);
					Writer.Bool("bInterface", Class.bInterface);
					Writer.KeyValues("Specifiers", Class.Specifiers);
					Writer.KeyValues("MetaData", Class.MetaData);
					WriteProperties(Writer, Class.Properties);
					Writer.Array("Functions", Class.Functions, [&](const FFunctionDecl& Function)
					{
						Writer.Object([&]
						{
							Writer.String("Name", Function.Name);
							Writer.Member("ReturnType");
							WriteType(Writer, Function.ReturnType);
							WriteParams(Writer, Function.Params);
							Writer.KeyValues("Specifiers", Function.Specifiers);
							Writer.KeyValues("MetaData", Function.MetaData);
							Writer.String("Access", Function.Access);
							Writer.Bool("bConst", Function.bConst);
							Writer.Bool("bStatic", Function.bStatic);
							Writer.Bool("bVirtual", Function.bVirtual);
							Writer.Location(Function.Location);
						});
					});
					Writer.Number("GeneratedBodyLine", Class.GeneratedBodyLine);
					Writer.Location(Class.Location);
				});
			});
			Writer.Array("Delegates", Model.Delegates, [&](const FDelegateDecl& Delegate)
			{
				Writer.Object([&]
				{
					Writer.String("Name", Delegate.Name);
					Writer.Bool("bMulticast", Delegate.bMulticast);
					Writer.Member("ReturnType");
					WriteType(Writer, Delegate.ReturnType);
					WriteParams(Writer, Delegate.Params);
					Writer.KeyValues("MetaData", Delegate.MetaData);
					Writer.Number("Line", Delegate.Line);
					Writer.Location(Delegate.Location);
				});
			});
		});
		return Writer.Result + "\n";
	}
}
