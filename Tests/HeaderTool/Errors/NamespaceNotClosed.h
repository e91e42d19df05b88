#pragma once

namespace Quorvel
{
	inline int32 Answer() { return 42; }
