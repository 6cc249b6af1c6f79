#include "json.h"

#include <string.h>

namespace zovapp {

void Json::prefix(const char* key) {
    if (!first_[depth_]) fputc(',', out_);
    first_[depth_] = false;
    if (key) {
        quoted(key, int(strlen(key)));
        fputc(':', out_);
    }
}

void Json::quoted(const char* s, int len) {
    fputc('"', out_);
    for (int i = 0; i < len; ++i) {
        unsigned char c = static_cast<unsigned char>(s[i]);
        switch (c) {
        case '"': fputs("\\\"", out_); break;
        case '\\': fputs("\\\\", out_); break;
        case '\n': fputs("\\n", out_); break;
        case '\r': fputs("\\r", out_); break;
        case '\t': fputs("\\t", out_); break;
        default:
            if (c < 0x20) fprintf(out_, "\\u%04x", c);
            else fputc(c, out_);
        }
    }
    fputc('"', out_);
}

void Json::open(bool isArray) {
    if (depth_ == kMaxDepth) return;
    ++depth_;
    first_[depth_] = true;
    array_[depth_] = isArray;
}

Json& Json::object(const char* key) {
    prefix(key);
    fputc('{', out_);
    open(false);
    return *this;
}

Json& Json::array(const char* key) {
    prefix(key);
    fputc('[', out_);
    open(true);
    return *this;
}

Json& Json::end() {
    if (depth_ > 0) fputc(array_[depth_--] ? ']' : '}', out_);
    return *this;
}

Json& Json::str(const char* key, const char* value) { return value ? str(key, value, int(strlen(value))) : null(key); }

Json& Json::str(const char* key, const char* value, int len) {
    prefix(key);
    quoted(value, len);
    return *this;
}

Json& Json::num(const char* key, long long value) {
    prefix(key);
    fprintf(out_, "%lld", value);
    return *this;
}

Json& Json::unum(const char* key, unsigned long long value) {
    prefix(key);
    fprintf(out_, "%llu", value);
    return *this;
}

Json& Json::boolean(const char* key, bool value) {
    prefix(key);
    fputs(value ? "true" : "false", out_);
    return *this;
}

Json& Json::null(const char* key) {
    prefix(key);
    fputs("null", out_);
    return *this;
}

void Json::line() {
    fputc('\n', out_);
    fflush(out_);
    depth_ = 0;
    first_[0] = true;
}

}  // namespace zovapp
