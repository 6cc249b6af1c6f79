#include <stdarg.h>
#include <string.h>

#include "cli.h"

namespace zovapp {

void Out::begin(bool json, FILE* f) {
    json_ = json;
    f_ = f;
    j_ = Json(f);
    depth_ = 0;
    if (json_) {
        j_.object();
        ++depth_;
    }
}

void Out::finish() {
    if (!json_) {
        fflush(f_);
        return;
    }
    while (depth_ > 0) {
        j_.end();
        --depth_;
    }
    j_.line();
}

void Out::open(const char* key) {
    if (!json_) return;
    j_.object(key);
    ++depth_;
}

void Out::openArray(const char* key) {
    if (!json_) return;
    j_.array(key);
    ++depth_;
}

void Out::close() {
    if (!json_ || depth_ <= 1) return;
    j_.end();
    --depth_;
}

void Out::str(const char* key, const char* label, const char* value, int len) {
    if (!value) value = "";
    if (len < 0) len = int(strlen(value));
    if (json_) j_.str(key, value, len);
    else if (label) fprintf(f_, "%s: %.*s\n", label, len, value);
}

void Out::num(const char* key, const char* label, long long value) {
    if (json_) j_.num(key, value);
    else if (label) fprintf(f_, "%s: %lld\n", label, value);
}

void Out::flag(const char* key, const char* label, bool value) {
    if (json_) j_.boolean(key, value);
    else if (label) fprintf(f_, "%s: %s\n", label, value ? "yes" : "no");
}

void Out::jstr(const char* key, const char* value, int len) {
    if (!json_) return;
    if (!value) value = "";
    j_.str(key, value, len < 0 ? int(strlen(value)) : len);
}

void Out::jnum(const char* key, long long value) {
    if (json_) j_.num(key, value);
}

void Out::text(const char* fmt, ...) {
    if (json_) return;
    va_list ap;
    va_start(ap, fmt);
    vfprintf(f_, fmt, ap);
    va_end(ap);
}

}  // namespace zovapp
