#pragma once

UINTERFACE(Abstract)
class UInterfaceSpecifier : public UInterface
{
	GENERATED_BODY()
};
