// The entry point of a console program.
#include <corecrt_startup.h>
#include <stdlib.h>

#include "start.h"

int __cdecl main(int argc, char** argv, char** environment);

extern "C" int mainCRTStartup() {
  _set_app_type(_crt_console_app);
  if (_configure_narrow_argv(_crt_argv_unexpanded_arguments) != 0 || _initialize_narrow_environment() != 0) return 255;
  if (!StartModule()) return 255;
  _crt_atexit(EndModule);
  exit(main(*__p___argc(), *__p___argv(), _get_initial_narrow_environment()));
}
