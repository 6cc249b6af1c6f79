// The PDU codec of zovqmi-cli against PDUs worked out by hand from the
// message format (the septet packing, the header fill bits, the semi-octet
// addresses and time stamps).
#include <string.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "pdu.h"

using namespace zovapp;

namespace {

std::string hex(const uint8_t* b, int n) {
    static const char d[] = "0123456789ABCDEF";
    std::string s;
    for (int i = 0; i < n; ++i) s += d[b[i] >> 4], s += d[b[i] & 15];
    return s;
}

std::string unhex(const std::string& h) {
    std::string out;
    for (size_t i = 0; i + 1 < h.size(); i += 2) out += char(std::stoi(h.substr(i, 2), nullptr, 16));
    return out;
}

DecodedSms decoded(const std::string& pduHex, int* rc = nullptr) {
    std::string b = unhex(pduHex);
    static DecodedSms sms;
    int r = decodePdu(reinterpret_cast<const uint8_t*>(b.data()), int(b.size()), &sms);
    if (rc) *rc = r;
    return sms;
}

SubmitParts gParts;

// Received messages: 7-bit with extension characters, UCS-2 with a
// surrogate pair, 8-bit data with a 16-bit concatenation reference, and an
// alphanumeric sender.
const char* const kDeliver7bit =
    "0791447700091032040B915155100003F000005211324150908013C2303BEC1E9775A0986C53066D28910D05";
const char* const kDeliverUcs2 =
    "07914477000910320408815155100000084220923295850A100047007200FC00DF00650020D83DDE00";
const char* const kDeliver8bit = "0791447700091032440B915155100003F00004521020304050000B06080412340201DEADBEEF";
const char* const kDeliverAlpha = "0791447700091032040BD0DAB7DD59A60300005210203040504002C834";

}  // namespace

TEST(CliPdu, SevenBitPackingOfAPlainTextMatchesTheWellKnownSeptets) {
    ASSERT_EQ(encodeSubmit("+4915550100", "hellohello", 0, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 1);
    // Header, then UDL 10 and the classic packing of "hellohello".
    EXPECT_EQ(hex(gParts.pdu[0], gParts.len[0]), "0001000A91945155100000000AE8329BFD4697D9EC37");
}

TEST(CliPdu, ExtensionTableCharactersTakeAnEscapeSeptetEach) {
    ASSERT_EQ(encodeSubmit("+4915550100", "Price: 5€ {a|b}", 0, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 1);
    EXPECT_EQ(gParts.coding, kCodingGsm7);
    // 15 characters, 4 of them from the extension table: 19 septets.
    EXPECT_EQ(hex(gParts.pdu[0], gParts.len[0]), "0001000A91945155100000001350797A5CD6816A9B3268830A6F80E24D0A");
}

TEST(CliPdu, TextOutsideTheDefaultAlphabetIsSentAsUcs2) {
    ASSERT_EQ(encodeSubmit("15550100", "Привет, мир", 0, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 1);
    EXPECT_EQ(gParts.coding, kCodingUcs2);
    EXPECT_EQ(hex(gParts.pdu[0], gParts.len[0]), "000100088151551000000816041F04400438043204350442002C0020043C04380440");
}

TEST(CliPdu, LongTextIsSplitIntoThreeConcatenatedParts) {
    std::string text;
    while (text.size() < 330) text += "Router at the tower reports: ";
    text.resize(330);
    ASSERT_EQ(encodeSubmit("+15550100300", text.c_str(), 0x2A, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 3);
    // 153 + 153 + 24 septets, each part led by the header 05 00 03 2A 03 0n
    // and one fill bit.
    EXPECT_EQ(hex(gParts.pdu[2], gParts.len[2]),
              "0041000B915155100003F000001F0500032A0303EE6539485E86BFE5F4B90E247DD7E96539284C07D101");
    EXPECT_EQ(hex(gParts.pdu[0], 32), "0041000B915155100003F00000A00500032A0301A4EF3ABD2C0785E9203ABA0C");
    EXPECT_EQ(hex(gParts.pdu[1], 24), "0041000B915155100003F00000A00500032A0302E8203ABA");
    std::string joined;
    for (int p = 0; p < 3; ++p) {
        static DecodedSms sms;
        ASSERT_EQ(decodePdu(gParts.pdu[p], gParts.len[p], &sms), kPduOk);
        EXPECT_TRUE(sms.submit);
        EXPECT_STREQ(sms.address, "+15550100300");
        EXPECT_TRUE(sms.concatenated);
        EXPECT_EQ(sms.reference, 0x2A);
        EXPECT_EQ(sms.part, p + 1);
        EXPECT_EQ(sms.total, 3);
        joined += sms.text;
    }
    EXPECT_EQ(joined, text);
}

TEST(CliPdu, AnEscapePairIsNeverSplitAcrossParts) {
    // 152 plain characters, then five "€" (162 septets, so two parts): the
    // first escape pair would straddle septet 153 and goes whole into the
    // second part.
    std::string text(152, 'x');
    text += "€€€€€";
    ASSERT_EQ(encodeSubmit("+15550100300", text.c_str(), 1, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 2);
    static DecodedSms a, b;
    ASSERT_EQ(decodePdu(gParts.pdu[0], gParts.len[0], &a), kPduOk);
    ASSERT_EQ(decodePdu(gParts.pdu[1], gParts.len[1], &b), kPduOk);
    EXPECT_EQ(std::string(a.text), std::string(152, 'x'));
    EXPECT_STREQ(b.text, "€€€€€");
}

TEST(CliPdu, LongUcs2TextUsesSixtySevenUnitsAPart) {
    std::string text;
    for (int i = 0; i < 100; ++i) text += "ж";
    ASSERT_EQ(encodeSubmit("+15550100300", text.c_str(), 7, &gParts), kPduOk);
    ASSERT_EQ(gParts.count, 2);
    static DecodedSms sms;
    ASSERT_EQ(decodePdu(gParts.pdu[1], gParts.len[1], &sms), kPduOk);
    EXPECT_EQ(sms.coding, kCodingUcs2);
    EXPECT_EQ(sms.part, 2);
    EXPECT_EQ(std::string(sms.text).size(), 33u * 2);  // 33 characters of 2 bytes
}

TEST(CliPdu, BadNumberInvalidUtf8AndOverlongTextAreRefused) {
    EXPECT_EQ(encodeSubmit("+1555x", "hi", 0, &gParts), kPduBadNumber);
    EXPECT_EQ(encodeSubmit("+", "hi", 0, &gParts), kPduBadNumber);
    EXPECT_EQ(encodeSubmit("123456789012345678901", "hi", 0, &gParts), kPduBadNumber);
    EXPECT_EQ(encodeSubmit("+15550100300", "", 0, &gParts), kPduBadText);
    EXPECT_EQ(encodeSubmit("+15550100300", "\xC3\x28", 0, &gParts), kPduBadText);
    EXPECT_EQ(encodeSubmit("+15550100300", std::string(1531, 'a').c_str(), 0, &gParts), kPduTooLong);
    EXPECT_EQ(encodeSubmit("+15550100300", std::string(1530, 'a').c_str(), 0, &gParts), kPduOk);
    EXPECT_EQ(gParts.count, kMaxParts);
}

TEST(CliPdu, DeliverInSevenBitGivesSenderTimeAndExtensionCharacters) {
    int rc;
    DecodedSms sms = decoded(kDeliver7bit, &rc);
    ASSERT_EQ(rc, kPduOk);
    EXPECT_FALSE(sms.submit);
    EXPECT_STREQ(sms.centre, "+447700900123");
    EXPECT_STREQ(sms.address, "+15550100300");
    EXPECT_STREQ(sms.text, "Balance: 12€ ^_^");
    EXPECT_EQ(sms.coding, kCodingGsm7);
    ASSERT_TRUE(sms.hasTime);
    EXPECT_EQ(sms.year, 2025);
    EXPECT_EQ(sms.month, 11);
    EXPECT_EQ(sms.day, 23);
    EXPECT_EQ(sms.hour, 14);
    EXPECT_EQ(sms.minute, 5);
    EXPECT_EQ(sms.second, 9);
    EXPECT_EQ(sms.zoneMinutes, 120);
    EXPECT_FALSE(sms.concatenated);
}

TEST(CliPdu, DeliverInUcs2CombinesSurrogatePairsAndKeepsANegativeZone) {
    int rc;
    DecodedSms sms = decoded(kDeliverUcs2, &rc);
    ASSERT_EQ(rc, kPduOk);
    EXPECT_STREQ(sms.address, "15550100");
    EXPECT_EQ(sms.coding, kCodingUcs2);
    EXPECT_STREQ(sms.text, "Grüße 😀");
    EXPECT_EQ(sms.year, 2024);
    EXPECT_EQ(sms.month, 2);
    EXPECT_EQ(sms.day, 29);
    EXPECT_EQ(sms.zoneMinutes, -300);
}

TEST(CliPdu, DeliverOfEightBitDataGivesHexAndASixteenBitReference) {
    int rc;
    DecodedSms sms = decoded(kDeliver8bit, &rc);
    ASSERT_EQ(rc, kPduOk);
    EXPECT_EQ(sms.coding, kCodingData8);
    EXPECT_STREQ(sms.text, "DEADBEEF");
    EXPECT_TRUE(sms.concatenated);
    EXPECT_EQ(sms.reference, 0x1234);
    EXPECT_EQ(sms.total, 2);
    EXPECT_EQ(sms.part, 1);
}

TEST(CliPdu, AlphanumericSenderIsDecodedFromSeptets) {
    int rc;
    DecodedSms sms = decoded(kDeliverAlpha, &rc);
    ASSERT_EQ(rc, kPduOk);
    EXPECT_STREQ(sms.address, "ZovNet");
    EXPECT_STREQ(sms.text, "Hi");
    EXPECT_EQ(sms.zoneMinutes, 60);
}

TEST(CliPdu, EveryTruncationOfAValidPduIsRefusedAsMalformed) {
    for (const char* h : {kDeliver7bit, kDeliverUcs2, kDeliver8bit, kDeliverAlpha}) {
        std::string b = unhex(h);
        for (size_t n = 0; n < b.size(); ++n) {
            static DecodedSms sms;
            EXPECT_EQ(decodePdu(reinterpret_cast<const uint8_t*>(b.data()), int(n), &sms), kPduMalformed)
                << h << " cut at " << n;
        }
    }
}

TEST(CliPdu, UnsupportedTypesAndCodingsAreNamedAsSuch) {
    // A status report (type 2) and a compressed text.
    int rc;
    decoded("000600", &rc);
    EXPECT_EQ(rc, kPduUnsupported);
    decoded("00040B915155100003F00020521020214300000100", &rc);
    EXPECT_EQ(rc, kPduUnsupported);
}

TEST(CliPdu, RandomBytesNeverReadPastThePduOrOverrunTheText) {
    // The decoder gets exactly the bytes it may read (a copy on the heap, so
    // that the sanitizers see a read past them), and must return a status.
    std::mt19937 rng(7);
    for (int round = 0; round < 20000; ++round) {
        size_t n = rng() % 200;
        std::vector<uint8_t> b(n);
        for (uint8_t& v : b) v = uint8_t(rng());
        if (n > 2 && round % 2) b[0] = 0, b[1] = uint8_t(rng() % 2 ? 0x04 : 0x41);  // plausible heads
        static DecodedSms sms;
        int rc = decodePdu(b.data(), int(n), &sms);
        ASSERT_TRUE(rc == kPduOk || rc == kPduMalformed || rc == kPduUnsupported) << rc;
        if (rc == kPduOk) {
            ASSERT_LT(size_t(sms.textLen), sizeof sms.text);
        }
    }
}
