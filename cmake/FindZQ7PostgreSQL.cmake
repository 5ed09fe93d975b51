# Finds the headers of a PostgreSQL 15 server as the target ZQ7Standard::postgresql, and sets
# ZQ7_POSTGRESQL_BINDIR, ZQ7_POSTGRESQL_PKGLIBDIR and ZQ7_POSTGRESQL_SHAREDIR, its folders, in the
# cache.
find_program(ZQ7_PG_CONFIG pg_config HINTS /usr/lib/postgresql/15/bin)
mark_as_advanced(ZQ7_PG_CONFIG)

function(zq7_ask_pg_config result question)
  set(answer "")
  if(ZQ7_PG_CONFIG)
    execute_process(COMMAND ${ZQ7_PG_CONFIG} ${question}
                    OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE)
  endif()
  set(${result} "${answer}" CACHE INTERNAL "What pg_config ${question} answers")
endfunction()
zq7_ask_pg_config(zq7_postgresql_version --version)
zq7_ask_pg_config(ZQ7_POSTGRESQL_BINDIR --bindir)
zq7_ask_pg_config(ZQ7_POSTGRESQL_PKGLIBDIR --pkglibdir)
zq7_ask_pg_config(ZQ7_POSTGRESQL_SHAREDIR --sharedir)
zq7_ask_pg_config(zq7_server_headers --includedir-server)

set(ZQ7_POSTGRESQL_INCLUDE_DIR "")
# pg_config of libpq-dev names the folder whether or not the headers are there.
if(zq7_postgresql_version MATCHES "^PostgreSQL 15" AND EXISTS ${zq7_server_headers}/postgres.h)
  set(ZQ7_POSTGRESQL_INCLUDE_DIR ${zq7_server_headers})
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ZQ7PostgreSQL
  REQUIRED_VARS ZQ7_PG_CONFIG ZQ7_POSTGRESQL_INCLUDE_DIR)

if(ZQ7PostgreSQL_FOUND AND NOT TARGET ZQ7Standard::postgresql)
  add_library(ZQ7Standard::postgresql INTERFACE IMPORTED)
  set_target_properties(ZQ7Standard::postgresql PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${ZQ7_POSTGRESQL_INCLUDE_DIR}")
endif()
