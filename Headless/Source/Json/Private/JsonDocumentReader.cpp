#include "Serialization/JsonReader.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "JsonUtf8.h"

#include <nlohmann/json.hpp>

#include <string>

namespace UE::Json::Private
{
	namespace
	{
		/**
		 * Deep enough for any real document, shallow enough that destroying or writing the tree,
		 * both recursive, stays far from the stack limit.
		 */
		constexpr int32 MaxDepth = 512;

		/** nlohmann quotes the offending input in its messages, which may cut a character in half. */
		FString AsciiMessage(const std::string& Text)
		{
			std::string Clean;
			for (unsigned char Byte : Text)
			{
				Clean.push_back(Byte < 0x80 ? char(Byte) : '?');
			}
			return Utf8ToString(Clean);
		}

		/**
		 * Builds the FJsonValue tree from nlohmann's SAX events. nlohmann's parser itself keeps its
		 * state on the heap, so only this builder's depth limit stands between hostile input and
		 * the tree. The lower-case member names are the ones nlohmann's SAX interface calls.
		 */
		class FJsonTreeBuilder
		{
		public:
			using FNlohmannJson = nlohmann::json;

			explicit FJsonTreeBuilder(EJson InRootType)
				: RootType(InRootType)
			{
			}

			bool null()
			{
				return AddValue(MakeShared<FJsonValueNull>());
			}

			bool boolean(bool bValue)
			{
				return AddValue(MakeShared<FJsonValueBoolean>(bValue));
			}

			bool number_integer(FNlohmannJson::number_integer_t Value)
			{
				return AddValue(MakeShared<FJsonValueNumber>(static_cast<double>(Value)));
			}

			bool number_unsigned(FNlohmannJson::number_unsigned_t Value)
			{
				return AddValue(MakeShared<FJsonValueNumber>(static_cast<double>(Value)));
			}

			bool number_float(FNlohmannJson::number_float_t Value, const FNlohmannJson::string_t& Text)
			{
				return AddValue(MakeShared<FJsonValueNumber>(Value));
			}

			bool string(FNlohmannJson::string_t& Value)
			{
				return AddValue(MakeShared<FJsonValueString>(Utf8ToString(Value)));
			}

			bool binary(FNlohmannJson::binary_t& Value)
			{
				// JSON text has no binary values; only the binary formats produce this event.
				return Fail(TEXT("Binary values are not JSON."));
			}

			bool start_object(std::size_t ElementCount)
			{
				if (!Enter(EJson::Object))
				{
					return false;
				}
				Stack.AddDefaulted();
				Stack.Top().Object = MakeShared<FJsonObject>();
				return true;
			}

			bool key(FNlohmannJson::string_t& Key)
			{
				Stack.Top().PendingKey = Utf8ToString(Key);
				return true;
			}

			bool end_object()
			{
				TSharedPtr<FJsonObject> Object = MoveTemp(Stack.Top().Object);
				Stack.Pop(EAllowShrinking::No);
				return AddValue(MakeShared<FJsonValueObject>(MoveTemp(Object)));
			}

			bool start_array(std::size_t ElementCount)
			{
				if (!Enter(EJson::Array))
				{
					return false;
				}
				Stack.AddDefaulted();
				return true;
			}

			bool end_array()
			{
				TArray<TSharedPtr<FJsonValue>> Elements = MoveTemp(Stack.Top().Elements);
				Stack.Pop(EAllowShrinking::No);
				return AddValue(MakeShared<FJsonValueArray>(MoveTemp(Elements)));
			}

			bool parse_error(std::size_t Position, const std::string& LastToken, const nlohmann::detail::exception& Exception)
			{
				// Drop nlohmann's "[json.exception.parse_error.101] " tag; the rest names line, column and cause.
				std::string What = Exception.what();
				const std::size_t TagEnd = What.find("] ");
				if (TagEnd != std::string::npos)
				{
					What.erase(0, TagEnd + 2);
				}
				return Fail(AsciiMessage(What));
			}

			TSharedPtr<FJsonValue> Root;
			FString ErrorMessage;

		private:
			struct FFrame
			{
				TSharedPtr<FJsonObject> Object;
				TArray<TSharedPtr<FJsonValue>> Elements;
				FString PendingKey;
			};

			bool Enter(EJson Container)
			{
				if (Stack.Num() == 0 && RootType != EJson::None && RootType != Container)
				{
					return FailWrongRoot();
				}
				if (Stack.Num() >= MaxDepth)
				{
					return Fail(FString::Printf(TEXT("Nesting is deeper than %d levels."), MaxDepth));
				}
				return true;
			}

			bool AddValue(TSharedPtr<FJsonValue> Value)
			{
				if (Stack.Num() == 0)
				{
					if (RootType != EJson::None && RootType != Value->Type)
					{
						return FailWrongRoot();
					}
					Root = MoveTemp(Value);
					return true;
				}
				FFrame& Frame = Stack.Top();
				if (Frame.Object.IsValid())
				{
					// A repeated key replaces the earlier value in its place, as SetField does. The key
					// is spent here: the next value in this object comes after a key event of its own.
					Frame.Object->Values.Add(MoveTemp(Frame.PendingKey), MoveTemp(Value));
				}
				else
				{
					Frame.Elements.Add(MoveTemp(Value));
				}
				return true;
			}

			bool FailWrongRoot()
			{
				return Fail(FString::Printf(TEXT("Expected the document to be an %s."), RootType == EJson::Object ? TEXT("object") : TEXT("array")));
			}

			bool Fail(const FString& Message)
			{
				if (ErrorMessage.IsEmpty())
				{
					ErrorMessage = Message;
				}
				return false;
			}

			EJson RootType;
			TArray<FFrame> Stack;
		};
	}

	bool ReadDocument(const UTF8CHAR* Text, int32 Len, EJson RootType, TSharedPtr<FJsonValue>& OutRoot, FString& OutErrorMessage)
	{
		OutRoot.Reset();
		OutErrorMessage.Empty();
		// nlohmann takes a NUL byte for the end of the input, which would silently drop whatever follows.
		// A raw NUL is never valid JSON (inside a string it must be escaped), so refuse it up front.
		for (int32 Index = 0; Index < Len; ++Index)
		{
			if (Text[Index] == 0)
			{
				OutErrorMessage = FString::Printf(TEXT("Unexpected NUL character at byte %d."), Index);
				return false;
			}
		}

		FJsonTreeBuilder Builder(RootType);
		bool bParsed = false;
		try
		{
			const char* Begin = reinterpret_cast<const char*>(Text);
			bParsed = nlohmann::json::sax_parse(Begin, Begin + Len, &Builder);
		}
		catch (const std::exception& Exception)
		{
			// sax_parse reports syntax through parse_error; only resource exhaustion can get here.
			OutErrorMessage = AsciiMessage(std::string("Json reader failed: ") + Exception.what());
			return false;
		}
		if (!bParsed || !Builder.Root.IsValid())
		{
			OutErrorMessage = Builder.ErrorMessage.IsEmpty() ? FString(TEXT("Improperly formatted.")) : Builder.ErrorMessage;
			return false;
		}
		OutRoot = MoveTemp(Builder.Root);
		return true;
	}
}
