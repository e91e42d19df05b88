#pragma once

USTRUCT()
struct FMissingSemicolon
{
	GENERATED_BODY()
}

USTRUCT()
struct FNext
{
	GENERATED_BODY()
};
