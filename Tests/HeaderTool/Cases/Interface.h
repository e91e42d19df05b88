#pragma once

#include "UObject/Interface.h"

#include "Interface.generated.h"

UINTERFACE(MinimalAPI, Blueprintable)
class UQuorvelDropTarget : public UInterface
{
	GENERATED_BODY()
};

/** Left to the engine's rules: the native interface class carries no reflected members here. */
class IQuorvelDropTarget
{
	GENERATED_BODY()

public:
	virtual bool AcceptsDrop() const = 0;
};

UCLASS(Abstract, HideCategories = (Input, "Rendering"), ClassGroup = (Tollmere), Within = Engine)
class UDropPanel final : public UObject, public IQuorvelDropTarget
{
	GENERATED_BODY()

public:
	virtual bool AcceptsDrop() const override { return true; }
};
