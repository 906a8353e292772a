// The program is not linked to libcups: the library brings twenty others along, which take a tenth of the start to load
// and megabytes to hold, and most runs print nothing. The first call of one of its functions loads it. They stand here
// under their own names and pass each call on, so that whatever asks the print service is written as against the
// library.

#include "ui/platform/printers.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <dlfcn.h>

namespace quillon::ui {

namespace {

/// Name of the library with the version of its interface, which its headers do not tell.
constexpr const char* kLibrary = "libcups.so.2";

PrintError NotLoaded()
{
    return {IPP_STATUS_ERROR_SERVICE_UNAVAILABLE, QString::fromLocal8Bit(::dlerror()), QStringLiteral("CUPS")};
}

/// A function of the library. @throws PrintError when there is no such library.
template <class Function>
Function* InLibrary(const char* name)
{
    // Never unloaded: it has threads and settings of its own.
    static void* const library = ::dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
    void* const function = library == nullptr ? nullptr : ::dlsym(library, name);
    if (function == nullptr) {
        throw NotLoaded();
    }
    return reinterpret_cast<Function*>(function);
}

} // namespace

} // namespace quillon::ui

using quillon::ui::InLibrary;

ipp_t* cupsDoIORequest(http_t* http, ipp_t* request, const char* resource, int infile, int outfile)
{
    return InLibrary<decltype(cupsDoIORequest)>("cupsDoIORequest")(http, request, resource, infile, outfile);
}

ipp_t* cupsDoRequest(http_t* http, ipp_t* request, const char* resource)
{
    return InLibrary<decltype(cupsDoRequest)>("cupsDoRequest")(http, request, resource);
}

http_encryption_t cupsEncryption()
{
    return InLibrary<decltype(cupsEncryption)>("cupsEncryption")();
}

ipp_status_t cupsLastError()
{
    return InLibrary<decltype(cupsLastError)>("cupsLastError")();
}

const char* cupsLastErrorString()
{
    return InLibrary<decltype(cupsLastErrorString)>("cupsLastErrorString")();
}

const char* cupsServer()
{
    return InLibrary<decltype(cupsServer)>("cupsServer")();
}

void cupsSetPasswordCB2(cups_password_cb2_t cb, void* user_data)
{
    InLibrary<decltype(cupsSetPasswordCB2)>("cupsSetPasswordCB2")(cb, user_data);
}

const char* cupsUser()
{
    return InLibrary<decltype(cupsUser)>("cupsUser")();
}

http_uri_status_t httpAssembleURI(http_uri_coding_t encoding, char* uri, int urilen, const char* scheme,
                                  const char* username, const char* host, int port, const char* resource)
{
    return InLibrary<decltype(httpAssembleURI)>("httpAssembleURI")(encoding, uri, urilen, scheme, username, host, port,
                                                                   resource);
}

void httpClose(http_t* http)
{
    InLibrary<decltype(httpClose)>("httpClose")(http);
}

http_t* httpConnect2(const char* host, int port, http_addrlist_t* addrlist, int family, http_encryption_t encryption,
                     int blocking, int msec, int* cancel)
{
    return InLibrary<decltype(httpConnect2)>("httpConnect2")(host, port, addrlist, family, encryption, blocking, msec,
                                                             cancel);
}

void httpSetTimeout(http_t* http, double timeout, http_timeout_cb_t cb, void* user_data)
{
    InLibrary<decltype(httpSetTimeout)>("httpSetTimeout")(http, timeout, cb, user_data);
}

ipp_attribute_t* ippAddInteger(ipp_t* ipp, ipp_tag_t group, ipp_tag_t value_tag, const char* name, int value)
{
    return InLibrary<decltype(ippAddInteger)>("ippAddInteger")(ipp, group, value_tag, name, value);
}

ipp_attribute_t* ippAddString(ipp_t* ipp, ipp_tag_t group, ipp_tag_t value_tag, const char* name, const char* language,
                              const char* value)
{
    return InLibrary<decltype(ippAddString)>("ippAddString")(ipp, group, value_tag, name, language, value);
}

ipp_attribute_t* ippAddStrings(ipp_t* ipp, ipp_tag_t group, ipp_tag_t value_tag, const char* name, int num_values,
                               const char* language, const char* const* values)
{
    return InLibrary<decltype(ippAddStrings)>("ippAddStrings")(ipp, group, value_tag, name, num_values, language,
                                                               values);
}

void ippDelete(ipp_t* ipp)
{
    InLibrary<decltype(ippDelete)>("ippDelete")(ipp);
}

const char* ippEnumString(const char* attrname, int enumvalue)
{
    return InLibrary<decltype(ippEnumString)>("ippEnumString")(attrname, enumvalue);
}

const char* ippErrorString(ipp_status_t error)
{
    return InLibrary<decltype(ippErrorString)>("ippErrorString")(error);
}

ipp_attribute_t* ippFindAttribute(ipp_t* ipp, const char* name, ipp_tag_t value_tag)
{
    return InLibrary<decltype(ippFindAttribute)>("ippFindAttribute")(ipp, name, value_tag);
}

ipp_attribute_t* ippFindNextAttribute(ipp_t* ipp, const char* name, ipp_tag_t value_tag)
{
    return InLibrary<decltype(ippFindNextAttribute)>("ippFindNextAttribute")(ipp, name, value_tag);
}

int ippGetBoolean(ipp_attribute_t* attr, int element)
{
    return InLibrary<decltype(ippGetBoolean)>("ippGetBoolean")(attr, element);
}

ipp_t* ippGetCollection(ipp_attribute_t* attr, int element)
{
    return InLibrary<decltype(ippGetCollection)>("ippGetCollection")(attr, element);
}

int ippGetCount(ipp_attribute_t* attr)
{
    return InLibrary<decltype(ippGetCount)>("ippGetCount")(attr);
}

int ippGetInteger(ipp_attribute_t* attr, int element)
{
    return InLibrary<decltype(ippGetInteger)>("ippGetInteger")(attr, element);
}

ipp_status_t ippGetStatusCode(ipp_t* ipp)
{
    return InLibrary<decltype(ippGetStatusCode)>("ippGetStatusCode")(ipp);
}

const char* ippGetString(ipp_attribute_t* attr, int element, const char** language)
{
    return InLibrary<decltype(ippGetString)>("ippGetString")(attr, element, language);
}

ipp_tag_t ippGetValueTag(ipp_attribute_t* attr)
{
    return InLibrary<decltype(ippGetValueTag)>("ippGetValueTag")(attr);
}

ipp_t* ippNewRequest(ipp_op_t op)
{
    return InLibrary<decltype(ippNewRequest)>("ippNewRequest")(op);
}

int ippPort()
{
    return InLibrary<decltype(ippPort)>("ippPort")();
}

pwg_media_t* pwgMediaForPWG(const char* pwg)
{
    return InLibrary<decltype(pwgMediaForPWG)>("pwgMediaForPWG")(pwg);
}

pwg_media_t* pwgMediaForSize(int width, int length)
{
    return InLibrary<decltype(pwgMediaForSize)>("pwgMediaForSize")(width, length);
}
