#include "QuorvelLog.h"

DEFINE_LOG_CATEGORY(LogQuorvel);
