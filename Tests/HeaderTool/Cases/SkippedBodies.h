#pragma once

#include "CoreMinimal.h"
#define QUORVEL_NOISE(X) \
	{ if (X) { return; } \
	}

#if WITH_EDITOR
#include "Editor.h"
#endif

#if 0
UCLASS()
class UNeverSeen : public UObject { };
#endif

#include "SkippedBodies.generated.h"

namespace Quorvel::Detail
{
	inline const char* Braces() { return "}}} { UCLASS() \" {"; }
	inline char Open() { return '{'; }
	inline char Quote() { return '\''; }

	class FNotReflected
	{
		UPROPERTY()
		int32 Ignored;
	};
}

inline const char* Raw() { return R"json({"a": "}"})json"; }

UCLASS()
class USkippedBodies : public UObject
{
	GENERATED_BODY()

public:
	void Plain()
	{
		const char* Text = "} UPROPERTY() int32 Fake; {";
		// } a brace in a comment
		/* { another */
		if (Text[0] == '}')
		{
			return;
		}
	}

	struct FNested
	{
		int32 Value = 0;
	};

	UPROPERTY()
	int32 AfterBodies;

	UFUNCTION(BlueprintCallable)
	void WithBody() { if (true) { Plain(); } }

	UPROPERTY()
	int32 AfterFunctionBody;

	template <typename T>
	T Get() const { return T{}; }

	UPROPERTY()
	FString AfterTemplate = FString(TEXT("}"));
};

inline void USkippedBodies_Helper() { USkippedBodies* Object = nullptr; (void)Object; }
