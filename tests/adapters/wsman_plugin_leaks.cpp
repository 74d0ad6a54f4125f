// What the leak sanitizer is to overlook: the NTLM plug-in never frees its digests, a few kilobytes
// a sign-in.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:gssntlmssp.so\nleak:libcrypto.so\n";
}
