# Build helpers shared by the headless engine, the plugin and the tests.
#
# quorvel_add_module(Name [DIR dir] [DEPS ...] [PRIVATE_DEPS ...] [LIBS ...])
#   One shared library per engine module, from <dir>/Public and <dir>/Private, as the engine lays
#   modules out. Every header under the module that declares reflected types goes through the
#   header tool; the generated code is compiled into the module.
#
# quorvel_add_test(Name SOURCES ... [DEPS ...] [REFLECT_DIRS ...])
#   One GoogleTest executable registered with CTest. Headers in REFLECT_DIRS (default: the source
#   directory of the call) that declare reflected types go through the header tool too, so tests
#   can declare their own classes, structs and delegates.
#
# quorvel_add_automation_tests(Name MODULES ... [FILTER prefix] [DEPS ...] [PROJECT dir] [TIMEOUT seconds]
#                              [EMULATOR_SETTING <Branch>:[<Section>]:<Key>] [FAIL_REGULAR_EXPRESSION regex])
#   A program that runs the engine automation tests inside MODULES headless; each test is a CTest test.

set(QUORVEL_GENERATED_DIR "${CMAKE_BINARY_DIR}/Generated")
set(QUORVEL_CMAKE_DIR "${CMAKE_CURRENT_LIST_DIR}")

# Of the given headers, the ones that need the header tool: those that use a reflection macro or a
# dynamic delegate.
function(_quorvel_reflected_among OutVar)
	set(Result "")
	foreach(Header IN LISTS ARGN)
		file(STRINGS "${Header}" Hits REGEX "^[ \t]*(UCLASS|USTRUCT|UENUM|GENERATED_BODY|DECLARE_DYNAMIC_)" LIMIT_COUNT 1)
		if(Hits)
			list(APPEND Result "${Header}")
		endif()
	endforeach()
	set(${OutVar} "${Result}" PARENT_SCOPE)
endfunction()

# The headers under the given directories that need the header tool.
function(_quorvel_reflected_headers OutVar)
	set(Candidates "")
	foreach(Dir IN LISTS ARGN)
		file(GLOB_RECURSE Found CONFIGURE_DEPENDS "${Dir}/*.h")
		list(APPEND Candidates ${Found})
	endforeach()
	_quorvel_reflected_among(Result ${Candidates})
	set(${OutVar} "${Result}" PARENT_SCOPE)
endfunction()

# Runs the header tool over the given headers for one module; adds the generated sources to Target.
function(_quorvel_reflect Target ModuleName)
	set(Headers ${ARGN})
	set(OutDir "${QUORVEL_GENERATED_DIR}/${ModuleName}")
	set(Outputs "${OutDir}/${ModuleName}.init.gen.cpp")
	foreach(Header IN LISTS Headers)
		get_filename_component(Base "${Header}" NAME_WE)
		list(APPEND Outputs "${OutDir}/${Base}.generated.h" "${OutDir}/${Base}.gen.cpp")
	endforeach()
	add_custom_command(
		OUTPUT ${Outputs}
		COMMAND HeaderTool --module ${ModuleName} --output "${OutDir}" ${Headers}
		DEPENDS HeaderTool ${Headers}
		COMMENT "Reflecting ${ModuleName}"
		VERBATIM)
	target_sources(${Target} PRIVATE ${Outputs})
	target_include_directories(${Target} PUBLIC "${OutDir}")
endfunction()

function(quorvel_add_module Name)
	cmake_parse_arguments(Arg "" "DIR" "DEPS;PRIVATE_DEPS;LIBS" ${ARGN})
	if(NOT Arg_DIR)
		set(Arg_DIR "${CMAKE_CURRENT_SOURCE_DIR}")
	endif()
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS "${Arg_DIR}/Private/*.cpp")
	add_library(${Name} SHARED ${Sources})
	string(TOUPPER "${Name}_API" ApiMacro)
	target_compile_definitions(${Name} PUBLIC "${ApiMacro}=" PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PUBLIC "${Arg_DIR}/Public" PRIVATE "${Arg_DIR}/Private")
	target_link_libraries(${Name} PUBLIC ${Arg_DEPS} PRIVATE ${Arg_PRIVATE_DEPS} ${Arg_LIBS})
	_quorvel_reflected_headers(Reflected "${Arg_DIR}/Public" "${Arg_DIR}/Private")
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
endfunction()

function(quorvel_add_test Name)
	cmake_parse_arguments(Arg "" "" "SOURCES;DEPS;REFLECT_DIRS" ${ARGN})
	if(NOT Arg_REFLECT_DIRS)
		set(Arg_REFLECT_DIRS "${CMAKE_CURRENT_SOURCE_DIR}")
	endif()
	add_executable(${Name} ${Arg_SOURCES})
	target_compile_definitions(${Name} PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PRIVATE ${Arg_REFLECT_DIRS})
	target_link_libraries(${Name} PRIVATE ${Arg_DEPS} GTest::gtest GTest::gmock GTest::gtest_main)
	_quorvel_reflected_headers(Reflected ${Arg_REFLECT_DIRS})
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
	add_test(NAME ${Name} COMMAND ${Name} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
	set_tests_properties(${Name} PROPERTIES TIMEOUT 300)
endfunction()

# quorvel_add_automation_tests(Name MODULES ... [FILTER prefix] [DEPS ...] [PROJECT dir] [TIMEOUT seconds]
#                              [EMULATOR_SETTING <Branch>:[<Section>]:<Key>] [FAIL_REGULAR_EXPRESSION regex])
#   The engine's automation tests that live inside MODULES (in their Private/Tests/), run headless by a
#   small program around RunHeadlessAutomationTests. The program starts the engine on PROJECT (default:
#   the repository root) with MODULES as the project's modules, in that order, and runs the tests whose
#   full names start with FILTER (default: all). DEPS are further libraries to link. Run it by hand with
#   --list, --filter <prefix>, --test <full name>, --project <dir> or engine switches such as -ini:...
#   Each automation test becomes a CTest test of its own, under its full name and with the label Name:
#   CTest asks the program for the list (--list) each time it runs, so the list never goes stale.
#   EMULATOR_SETTING starts a platform emulator in the program, on a port the system picks, with its
#   state in memory, and points that setting at it (-ini:<setting>=<url>) before the engine starts.
#   A test whose output matches FAIL_REGULAR_EXPRESSION fails in CTest, whatever the program says: a
#   test that would pass with only a note where it could not run, for instance.
function(quorvel_add_automation_tests Name)
	cmake_parse_arguments(Arg "" "FILTER;PROJECT;TIMEOUT;EMULATOR_SETTING;FAIL_REGULAR_EXPRESSION" "MODULES;DEPS" ${ARGN})
	if(NOT Arg_MODULES)
		message(FATAL_ERROR "quorvel_add_automation_tests(${Name}): MODULES names the modules whose tests to run")
	endif()
	if(NOT Arg_PROJECT)
		set(Arg_PROJECT "${CMAKE_SOURCE_DIR}")
	endif()
	if(NOT Arg_TIMEOUT)
		set(Arg_TIMEOUT 300)
	endif()
	set(AUTOMATION_NAME "${Name}")
	set(AUTOMATION_FILTER "${Arg_FILTER}")
	set(AUTOMATION_PROJECT "${Arg_PROJECT}")
	set(AUTOMATION_EMULATOR_SETTING "${Arg_EMULATOR_SETTING}")
	if(Arg_EMULATOR_SETTING)
		set(AUTOMATION_WITH_EMULATOR 1)
	else()
		set(AUTOMATION_WITH_EMULATOR 0)
	endif()
	string(JOIN ", " AUTOMATION_MODULES ${Arg_MODULES})
	set(AUTOMATION_MODULE_NAMES "")
	foreach(Module IN LISTS Arg_MODULES)
		list(APPEND AUTOMATION_MODULE_NAMES "FName(TEXT(\"${Module}\"))")
	endforeach()
	string(JOIN ", " AUTOMATION_MODULE_NAMES ${AUTOMATION_MODULE_NAMES})
	set(Main "${CMAKE_CURRENT_BINARY_DIR}/${Name}Main.cpp")
	configure_file("${QUORVEL_CMAKE_DIR}/AutomationTestsMain.cpp.in" "${Main}" @ONLY)

	add_executable(${Name} "${Main}")
	target_compile_definitions(${Name} PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	# The modules are linked whole: their tests register themselves as the program loads them.
	target_link_libraries(${Name} PRIVATE Launch ${Arg_MODULES} ${Arg_DEPS})
	if(Arg_EMULATOR_SETTING)
		target_link_libraries(${Name} PRIVATE EmulatorLib)
	endif()

	# Read by CTest in this directory: it lists the tests and adds one CTest test per automation test.
	set(Loader "${CMAKE_CURRENT_BINARY_DIR}/${Name}Tests.cmake")
	file(GENERATE OUTPUT "${Loader}" CONTENT "set(AutomationProgram [==[$<TARGET_FILE:${Name}>]==])
set(AutomationName [==[${Name}]==])
set(AutomationFilter [==[${Arg_FILTER}]==])
set(AutomationWorkingDirectory [==[${CMAKE_SOURCE_DIR}]==])
set(AutomationTimeout ${Arg_TIMEOUT})
set(AutomationFailPattern [==[${Arg_FAIL_REGULAR_EXPRESSION}]==])
include([==[${QUORVEL_CMAKE_DIR}/AutomationTestsList.cmake]==])
")
	set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${Loader}")
endfunction()

# quorvel_add_benchmark(Name SOURCES ... [DEPS ...])
#   One Google Benchmark executable. The headers listed among its SOURCES that declare reflected
#   types go through the header tool, as a test's do; a benchmark of plain C++ lists none.
function(quorvel_add_benchmark Name)
	cmake_parse_arguments(Arg "" "" "SOURCES;DEPS" ${ARGN})
	find_package(benchmark REQUIRED)
	add_executable(${Name} ${Arg_SOURCES})
	target_compile_definitions(${Name} PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
	target_link_libraries(${Name} PRIVATE ${Arg_DEPS} benchmark::benchmark)
	set(Headers "")
	foreach(Source IN LISTS Arg_SOURCES)
		if(Source MATCHES "\\.h$")
			get_filename_component(Header "${Source}" ABSOLUTE)
			list(APPEND Headers "${Header}")
		endif()
	endforeach()
	_quorvel_reflected_among(Reflected ${Headers})
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
endfunction()
