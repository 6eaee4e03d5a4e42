#include "convert/delimited_sink.h"

#include <utility>

#include "common/run_time_fault.h"
#include "convert/refusal.h"

namespace kelvo {

namespace {

void appendField(std::string& text, std::string_view field) {
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
        text += field;
        return;
    }
    text += '"';
    for (const char c : field) {
        if (c == '"') text += '"';
        text += c;
    }
    text += '"';
}

}  // namespace

DelimitedSink::DelimitedSink(std::unique_ptr<ByteWriter> output, std::vector<OutputColumn> columns,
                             AngleForm angles)
    : output_(std::move(output)), columns_(std::move(columns)), angles_(angles) {
    std::string header = "name";
    for (const OutputColumn& column : columns_) {
        header += ',';
        header += column.name;
    }
    write(header + ",status\n");
}

void DelimitedSink::write(std::string_view text) {
    try {
        output_->write(text);
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    }
}

void DelimitedSink::prepare(RowBlock& block) const {
    std::string& text = block.written;
    for (std::size_t i = 0; i < block.size(); ++i) {
        appendField(text, block.names[i]);
        const auto status = block.statuses.find(i);
        if (status != block.statuses.end()) {
            text.append(columns_.size() + 1, ',');
            appendField(text, status->second);
        } else {
            for (const OutputColumn& column : columns_) {
                text += ',';
                appendCell(text, column, block.points[i], angles_);
            }
            text += ',';
        }
        text += '\n';
    }
}

void DelimitedSink::take(const RowBlock& block) {
    write(block.written);
}

void DelimitedSink::finish() {
    try {
        output_->close();
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    }
}

}  // namespace kelvo
