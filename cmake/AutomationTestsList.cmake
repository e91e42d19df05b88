# Run by CTest, through the loader quorvel_add_automation_tests writes: asks the automation program for
# its tests and adds a CTest test for each, which runs that test alone (--test <full name>). Expects
# AutomationProgram, AutomationName, AutomationFilter, AutomationWorkingDirectory, AutomationTimeout
# and AutomationFailPattern (may be empty).
if(NOT EXISTS "${AutomationProgram}")
	add_test("${AutomationName}_NOT_BUILT" "${AutomationName}_NOT_BUILT")
	return()
endif()

execute_process(
	COMMAND "${AutomationProgram}" --list
	WORKING_DIRECTORY "${AutomationWorkingDirectory}"
	OUTPUT_VARIABLE Listing
	ERROR_VARIABLE ListingErrors
	RESULT_VARIABLE ListingResult
	TIMEOUT 120)
if(NOT ListingResult EQUAL 0)
	message(WARNING "${AutomationProgram} --list failed (${ListingResult}):\n${Listing}${ListingErrors}")
	add_test("${AutomationName}_LIST_FAILED" "${AutomationProgram}" --list)
	return()
endif()

# The listing shares standard output with the engine's log: with a filter, a name starts with one of its
# prefixes; without one, a log line is "<Category>: ...".
string(REPLACE "+" ";" Prefixes "${AutomationFilter}")
string(REPLACE "\n" ";" Lines "${Listing}")
foreach(Line IN LISTS Lines)
	if(Line STREQUAL "")
		continue()
	endif()
	set(IsTest FALSE)
	if(AutomationFilter STREQUAL "")
		if(NOT Line MATCHES "^[A-Za-z0-9_]+: ")
			set(IsTest TRUE)
		endif()
	else()
		string(TOLOWER "${Line}" LowerLine)
		foreach(Prefix IN LISTS Prefixes)
			string(STRIP "${Prefix}" Prefix)
			string(TOLOWER "${Prefix}" Prefix)
			string(LENGTH "${Prefix}" PrefixLength)
			string(SUBSTRING "${LowerLine}" 0 ${PrefixLength} LineStart)
			if(NOT Prefix STREQUAL "" AND LineStart STREQUAL Prefix)
				set(IsTest TRUE)
			endif()
		endforeach()
	endif()
	if(IsTest)
		add_test("${Line}" "${AutomationProgram}" --test "${Line}")
		set_tests_properties("${Line}" PROPERTIES
			WORKING_DIRECTORY "${AutomationWorkingDirectory}"
			TIMEOUT ${AutomationTimeout}
			LABELS "${AutomationName}")
		if(NOT AutomationFailPattern STREQUAL "")
			set_tests_properties("${Line}" PROPERTIES FAIL_REGULAR_EXPRESSION "${AutomationFailPattern}")
		endif()
	endif()
endforeach()
