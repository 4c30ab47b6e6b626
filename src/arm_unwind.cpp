// Keeps the C++ run-time library out of the object on 32-bit ARM.
//
// There, unwind tables refer to the personality routines below for no other purpose than to have
// the linker bring them in. The unwinder of the program that throws picks its own routines by the
// number in the table and never calls these, so empty ones let a host's exception or jump pass
// through the library without making it depend on anything.
#ifdef __ARM_EABI__

extern "C" {

[[gnu::visibility("hidden")]] void __aeabi_unwind_cpp_pr0();
[[gnu::visibility("hidden")]] void __aeabi_unwind_cpp_pr1();

void __aeabi_unwind_cpp_pr0() {}
void __aeabi_unwind_cpp_pr1() {}

} // extern "C"

#endif
