-- ---- The reading part --------------------------------------------------------------------------
--
-- Plain Lua, for 5.2 and later: it knows rows and no names, and nothing of Wireshark. It reads the
-- bytes of one message as the library does, IE by IE, and tells what they hold, where and why they
-- stop, and what was let pass.

local byte, find = string.byte, string.find

local tagSize, headerSize = 2, 6

-- ---- Rows, linked ------------------------------------------------------------------------------

local typesByName, typesByTag, messagesById = {}, {}, {}

-- The numbers with which a message, sequence or record always begins, as long as any value will do:
-- `lead` holds their types in order, and by type the byte at which each begins; the pattern matches
-- all of them at once.
local function begin_lead(owner)
  owner.lead, owner.leadSize, owner.leadPattern = {}, 0, "^"
end

local function extend_lead(owner, type)
  local lead = owner.lead
  lead[#lead + 1], lead[type] = type, owner.leadSize
  owner.leadSize = owner.leadSize + type.size
  owner.leadPattern = owner.leadPattern .. type.pattern:sub(2)
end

local function link_lead(owner, types)
  for _, type in ipairs(types) do
    if not type.pattern or owner.lead[type] then
      return
    end
    extend_lead(owner, type)
  end
end

-- `mustFill` are the slots that are not to stay empty when they are called for.
local function link_slots(owner)
  local types, isLeading = {}, true
  owner.mustFill = {}
  for _, slot in ipairs(owner.slots) do
    slot.type = typesByName[slot.type]
    slot.condition = slot.condition and rows.conditions[slot.condition]
    slot.isMandatory = slot.presence == "mandatory"
    isLeading = isLeading and slot.isMandatory
    types[#types + 1] = isLeading and slot.type or nil
    if slot.condition and owner.rule ~= "none" then
      table.insert(owner.mustFill, slot)
    end
  end
  link_lead(owner, types)
end

-- Of a code word only its width travels.
local function link_number(type)
  local most = 256 ^ type.width - 1
  type.greatest = math.min(type.greatest, most)
  type.size = headerSize + type.width
  if type.least == 0 and type.greatest == most then
    local header = string.char(math.floor(type.tag / 256), type.tag % 256, 0, 0, 0, type.width)
    type.pattern = "^" .. header:gsub("%p", "%%%0") .. ("."):rep(type.width)
  end
end

for _, type in ipairs(rows.types) do
  typesByName[type.name], typesByTag[type.tag] = type, type
  type.label = type.name .. " [" .. type.tag .. "]"
  type.isComposite = type.shape == "sequence" or type.shape == "compositeList"
  if type.shape == "scalar" then
    link_number(type)
  end
end
for _, condition in pairs(rows.conditions) do
  condition.type = typesByName[condition.type]
end
for _, type in ipairs(rows.types) do
  type.item = type.item and typesByName[type.item]
  for i, member in ipairs(type.members or {}) do
    type.members[i] = typesByName[member]
  end
  begin_lead(type)
  if type.slots then
    link_slots(type)
  else
    link_lead(type, type.members or {})
  end
end
local messageIdType = typesByName.MessageId
for _, message in ipairs(rows.messages) do
  begin_lead(message)
  extend_lead(message, messageIdType)
  link_slots(message)
  messagesById[message.id] = message
end

-- ---- Words -------------------------------------------------------------------------------------

local function number_text(number)
  return string.format("%d", number)
end

local function counted(count, thing)
  return number_text(count) .. " " .. thing .. (count == 1 and "" or "s")
end

local function label_of_tag(tag)
  local type = typesByTag[tag]
  return type and type.label or "unknown tag " .. tag
end

local units = { bytes = "byte", list = "item", compositeList = "element" }

local function range_text(type)
  if type.least == type.greatest then
    return "exactly " .. number_text(type.least)
  end
  return number_text(type.least) .. " to " .. number_text(type.greatest)
end

-- What the place holders of a sentence stand for; `type` is that of the IE told of.
local placeHolders = {
  ie = function(type) return type.label end,
  name = function(type) return type.name end,
  width = function(type) return counted(type.width, "byte") end,
  least = function(type) return number_text(type.least) end,
  greatest = function(type) return number_text(type.greatest) end,
  capacity = function(type) return number_text(type.capacity) end,
  range = range_text,
  parts = function(type) return type.item and "items" or "parts" end,
  found = function(_, values) return label_of_tag(values.found) end,
  owner = function(_, values) return values.owner end,
  condition = function(_, values) return values.condition.meaning end,
  message = function(_, values) return values.message.name end,
}

-- How a number may stand in a sentence: {number}, {other:byte}.
local numberForms = {
  [""] = number_text,
  byte = function(number) return counted(number, "byte") end,
  unit = function(number, type) return counted(number, units[type.shape]) end,
  remains = function(number) return number == 1 and "remains" or "remain" end,
}

local function sentence(reason, type, values)
  return (rows.reasons[reason]:gsub("{(%w+):?(%w*)}", function(name, form)
    if placeHolders[name] then
      return placeHolders[name](type, values)
    end
    return numberForms[form](values[name], type)
  end))
end

local function path_of(node)
  if not node.parent then
    return "" -- the message itself
  end
  local path = path_of(node.parent)
  if node.index then
    return path .. "[" .. node.index .. "]"
  end
  return path == "" and node.name or path .. "." .. node.name
end

-- Something found: at a byte, in an IE, for a reason. `values` holds what its sentence needs beyond
-- the IE's own row; its `type` stands in for that row.
local function finding(node, at, reason, values)
  values = values or {}
  local what = sentence(reason, values.type or node.type, values)
  return { at = at, path = path_of(node), reason = reason, what = what }
end

local function words(found)
  local width = found.at <= 0xFF and 2 or found.at <= 0xFFFF and 4 or 8
  local place = string.format("byte %d (0x%0" .. width .. "x)", found.at, found.at)
  if found.path ~= "" then
    place = place .. ", " .. found.path
  end
  return place .. ": " .. found.what
end

-- ---- Values ------------------------------------------------------------------------------------
--
-- A node is an IE or nested TLV: its row, its name and place in its parent, the byte at which its
-- header begins, its size, and its parts as an array. A walk is the bytes and a position in them.
-- Long captures spend most of their time here, so loops use indices: `ipairs` makes a call each time.

-- With what most have at once, and room for two members more: a table that grows is slow. `declared`
-- is the length in the header once that was read.
local function new_node(parent, type, name, index)
  local node = { parent = parent, type = type, name = name, at = 0, declared = false, size = 0 }
  if index then
    node.index = index
  end
  return node
end

-- The tag at the position, 0 if there is not enough for one.
local function tag_at(walk)
  local high, low = byte(walk.bytes, walk.at + 1, walk.at + tagSize)
  return low and high * 256 + low or 0
end

local function number_at(bytes, at, width)
  local a, b, c, d = byte(bytes, at + 1, at + width)
  if width == 1 then
    return a
  end
  return width == 2 and a * 256 + b or ((a * 256 + b) * 256 + c) * 256 + d
end

-- A number that nothing is to be said about, with what showing it takes.
local function number_node(bytes, at, type)
  local number = number_at(bytes, at + headerSize, type.width)
  return { type = type, at = at, size = type.size, number = number }
end

-- Takes the numbers with which `owner` begins, if they are there as its row has them. They become
-- nodes only when somebody looks: most messages of a long capture are not looked at. Tells how many
-- were taken; if none, the longer way tells why.
local function take_lead(walk, owner, row)
  local _, behind = find(walk.bytes, row.leadPattern, walk.at + 1)
  if not behind then
    return 0
  end
  owner.lead, owner.leadAt = row.lead, walk.at
  walk.at = behind
  return #row.lead
end

-- Takes one number, in the same way.
local function take_number(walk, owner, type)
  local at = walk.at
  local _, behind = find(walk.bytes, type.pattern, at + 1)
  if behind then
    owner[#owner + 1] = number_node(walk.bytes, at, type)
    walk.at = behind
  end
  return behind
end

-- Where the first part of a type begins among an owner's parts.
local function place_in(owner, type)
  local at = owner.lead and owner.lead[type]
  if at then
    return owner.leadAt + at
  end
  for i = 1, #owner do
    if owner[i].type == type then
      return owner[i].at
    end
  end
end

-- An owner's parts, all of them nodes.
local function parts_of(bytes, owner)
  local lead = owner.lead or {}
  owner.lead = nil
  for i = #owner, 1, -1 do
    owner[i + #lead] = owner[i]
  end
  for i, type in ipairs(lead) do
    owner[i] = number_node(bytes, owner.leadAt + lead[type], type)
  end
  return owner
end

local function header_fault(walk, node)
  local at, left, tag = walk.at, walk.length - walk.at, tag_at(walk)
  if left == 0 then
    return finding(node, at, "BytesEnd")
  end
  if left >= tagSize and tag ~= node.type.tag then
    return finding(node, at, "WrongTag", { found = tag })
  end
  return finding(node, at, "HeaderCut", { number = left })
end

-- Reads the header of an IE or nested TLV and moves behind it.
local function read_header(walk, node)
  local at = walk.at
  local a, b, c, d, e, f = byte(walk.bytes, at + 1, at + headerSize)
  node.at = at
  if not f or a * 256 + b ~= node.type.tag then
    return header_fault(walk, node)
  end
  node.declared = ((c * 256 + d) * 256 + e) * 256 + f
  walk.at = at + headerSize
end

local function too_few_left(walk, node)
  local values = { number = node.declared, other = walk.length - node.at - headerSize }
  return finding(node, node.at + tagSize, "LengthBeyondBytes", values)
end

-- Notes a length field that disagrees with what was read.
local function note_length(walk, node)
  local taken = walk.at - node.at - headerSize
  if node.declared ~= taken then
    local values = { number = node.declared, other = taken }
    walk.notes[#walk.notes + 1] = finding(node, node.at + tagSize, "LengthDiffers", values)
  end
end

local readers = {}

-- Reads a whole primitive IE or nested TLV, moving behind it on success.
local function read_value(walk, node)
  local fault = read_header(walk, node) or readers[node.type.shape](walk, node)
  node.size = walk.at - node.at
  return fault
end

function readers.scalar(walk, node)
  local type, at = node.type, walk.at
  if node.declared ~= type.width then
    return finding(node, node.at + tagSize, "WrongWidth", { number = node.declared })
  end
  if node.declared > walk.length - at then
    return too_few_left(walk, node)
  end
  node.number = number_at(walk.bytes, at, type.width)
  walk.at = at + type.width
end

function readers.bytes(walk, node)
  local type = node.type
  if node.declared > walk.length - walk.at then
    return too_few_left(walk, node)
  end
  if node.declared > type.capacity then
    return finding(node, node.at + tagSize, "LengthBeyondArray", { number = node.declared })
  end
  node.count = node.declared
  walk.at = walk.at + node.declared
end

-- Members are bounded by the bytes that remain and not by the record, but each must begin before
-- the record's length is used up.
function readers.record(walk, node)
  local start = walk.at
  if node.declared > walk.length - start then
    return too_few_left(walk, node)
  end
  local members, taken = node.type.members, 0
  if node.declared >= node.type.leadSize then
    taken = take_lead(walk, node, node.type)
  end
  for i = taken + 1, #members do
    local member = new_node(node, members[i], members[i].name)
    if walk.at - start >= node.declared then
      local values = { type = node.type, number = walk.at - start }
      return finding(member, walk.at, "MemberMissing", values)
    end
    local fault = read_value(walk, member)
    if fault then
      return fault
    end
    node[#node + 1] = member
  end
  note_length(walk, node)
end

-- An item that is a plain number needs no closer look.
local function read_item(walk, list, item)
  if item.pattern and take_number(walk, list, item) then
    return nil
  end
  local node = new_node(list, item, item.name, list.count)
  local fault = read_value(walk, node)
  if not fault then
    list[#list + 1] = node
  end
  return fault
end

function readers.list(walk, node)
  local start, type, item = walk.at, node.type, node.type.item
  if node.declared > walk.length - start then
    return too_few_left(walk, node)
  end
  node.count = 0
  while walk.at - start < node.declared do
    if node.count == type.capacity then
      local extra = new_node(node, item, item.name, node.count)
      return finding(extra, walk.at, "TooManyItems", { type = type })
    end
    local fault = read_item(walk, node, item)
    if fault then
      return fault
    end
    node.count = node.count + 1
  end
  note_length(walk, node)
end

-- ---- Ranges ------------------------------------------------------------------------------------

local function count_fault(node, at)
  local type = node.type
  if node.count < type.least or node.count > type.greatest then
    return finding(node, at, "CountOutOfRange", { number = node.count })
  end
end

local function number_fault(node)
  local type, number, at = node.type, node.number, node.at + headerSize
  if number < type.least then
    return finding(node, at, "BelowLeast", { number = number })
  end
  if number > type.greatest then
    return finding(node, at, "AboveGreatest", { number = number })
  end
end

-- What makes a value invalid that was read, if anything does.
local function find_invalid(node)
  local shape, fault = node.type.shape, nil
  if shape == "scalar" then
    return number_fault(node)
  elseif shape == "bytes" then
    return count_fault(node, node.at + headerSize)
  elseif shape == "list" then
    fault = count_fault(node, node.at + headerSize)
  end
  for i = 1, fault and 0 or #node do
    fault = fault or find_invalid(node[i])
  end
  return fault
end

-- ---- Slots of a sequence composite or a message ------------------------------------------------

local function is_called_for(walk, owner, slot)
  local condition = slot.condition
  local at = place_in(owner, condition.type)
  local number = at and number_at(walk.bytes, at + headerSize, condition.type.width)
  return number ~= nil and (condition.values[number] or false) == condition.inside
end

-- The first conditional slot that is not filled although it is called for. The walk fills none
-- that is not.
local function unmet_condition(walk, owner, row)
  for i = 1, #row.mustFill do
    local slot = row.mustFill[i]
    if not owner[slot] and is_called_for(walk, owner, slot) then
      return slot
    end
  end
end

local function needed(owner, slot, at)
  return finding(new_node(owner, slot.type, slot.name), at, "Needed", slot)
end

local read_rest, read_elements

-- Each reader of a child tells what became of it: `absent` (another tag, or bytes that do not
-- decode), `invalid` (decoded, out of its range or rules) or `valid`; and why it is not valid.
local function read_composite(walk, node)
  local type = node.type
  local fault = read_header(walk, node)
  if fault then
    return "absent", fault
  end
  if type.slots then
    fault = read_rest(walk, node, type, take_lead(walk, node, type) + 1)
  else
    fault = read_elements(walk, node, type)
  end
  node.size = walk.at - node.at
  if fault then
    return "absent", fault
  end
  note_length(walk, node)
  local unmet = type.slots and unmet_condition(walk, node, type)
  if unmet then
    return "invalid", needed(node, unmet, walk.at)
  end
  fault = type.item and count_fault(node, node.at)
  return fault and "invalid" or "valid", fault
end

local function read_child(walk, node)
  if node.type.isComposite then
    return read_composite(walk, node)
  end
  local fault = read_value(walk, node)
  if fault then
    return "absent", fault
  end
  fault = find_invalid(node)
  return fault and "invalid" or "valid", fault
end

local function leave_out(walk, slot, fault)
  walk.leftOut[#walk.leftOut + 1] = { at = walk.at, slot = slot, why = fault }
end

-- Why a child that is not taken refuses its owner, if it does.
local function refusal(walk, row, slot, node, outcome, fault, isCalledFor)
  if slot.isMandatory then
    return fault
  end
  local stoodThere = tag_at(walk) == slot.type.tag
  if outcome == "valid" then
    fault = finding(node, walk.at, "NotCalledFor", slot)
  end
  if slot.condition then
    if outcome == "absent" and isCalledFor and not stoodThere and fault.reason ~= "HeaderCut" then
      local values = { condition = slot.condition, found = tag_at(walk) }
      fault = finding(node, fault.at, "NeededButFound", values)
    end
    local refuses = isCalledFor
    if outcome ~= "absent" then
      refuses = row.rule == "refuseUncalled"
    end
    if refuses then
      return fault
    end
  end
  if stoodThere then
    leave_out(walk, slot, fault)
  end
end

-- Goes back to where a child began that is not taken; what was noted in it does not count.
local function go_back(walk, at, noteCount)
  walk.at = at
  for i = #walk.notes, noteCount + 1, -1 do
    walk.notes[i] = nil
  end
end

local function note_filled(owner, slot)
  if slot.condition then
    owner[slot] = true
  end
end

-- Tries the child of one slot at the current position and moves behind it if it is taken. Returns
-- why the owner is refused, if it is.
local function read_slot(walk, owner, row, slot, isCalledFor)
  if isCalledFor and slot.type.pattern and take_number(walk, owner, slot.type) then
    note_filled(owner, slot)
    return nil
  end
  local start, noteCount = walk.at, #walk.notes
  local node = new_node(owner, slot.type, slot.name)
  local outcome, fault = read_child(walk, node)
  if outcome == "valid" and isCalledFor then
    owner[#owner + 1] = node
    note_filled(owner, slot)
    return nil
  end
  go_back(walk, start, noteCount)
  fault = refusal(walk, row, slot, node, outcome, fault, isCalledFor)
  if fault and node.type.isComposite and node.declared then
    owner[#owner + 1] = node -- shows how far it went
  end
  return fault
end

-- The bytes have ended before slot `next`.
local function end_of_bytes(walk, owner, row, next)
  for i = next, #row.slots do
    local slot = row.slots[i]
    if slot.isMandatory then
      return finding(new_node(owner, slot.type, slot.name), walk.at, "BytesEnd")
    end
    local mayRefuse = slot.condition and row.rule == "dropUncalledRequireAtEnd"
    if mayRefuse and is_called_for(walk, owner, slot) then
      return needed(owner, slot, walk.at)
    end
  end
end

-- The slots from `first` on. One that nothing calls for is passed over unless its IE stands there.
function read_rest(walk, owner, row, first)
  local slots = row.slots
  for i = first, #slots do
    if walk.at == walk.length then
      return end_of_bytes(walk, owner, row, i)
    end
    local slot = slots[i]
    local isCalledFor = not slot.condition or is_called_for(walk, owner, slot)
    local isAwaited = slot.isMandatory or (slot.condition and isCalledFor)
    if isAwaited or tag_at(walk) == slot.type.tag then
      local fault = read_slot(walk, owner, row, slot, isCalledFor)
      if fault then
        return fault
      end
    end
  end
end

-- A list's length is what its elements may take together; each is bounded by the bytes that remain.
function read_elements(walk, list, type)
  local start = walk.at
  list.count = 0
  while walk.at - start < list.declared do
    if walk.at == walk.length then
      local values = { number = list.declared, other = walk.at - start }
      return finding(list, start - headerSize + tagSize, "ListEnds", values)
    end
    local at, noteCount = walk.at, #walk.notes
    local element = new_node(list, type.item, type.item.name, list.count)
    local outcome, fault = read_composite(walk, element)
    if element.declared then
      list[#list + 1] = element
    end
    if outcome ~= "valid" then
      go_back(walk, at, noteCount)
      return fault
    end
    list.count = list.count + 1
    if walk.at - start > list.declared then
      local values = { owner = path_of(list), number = list.declared }
      return finding(element, walk.at, "ElementBeyondList", values)
    end
  end
end

-- ---- The message -------------------------------------------------------------------------------

-- Adds what was left out at the position where the walk stopped, and what, inside that, was left
-- out where it stopped in its turn.
local function add_left_out(walk, stop, findings)
  for i = #walk.leftOut, 1, -1 do
    local left = walk.leftOut[i]
    if left.at == stop then
      left.why.what = left.why.what .. sentence("LeftOut", left.slot, {})
      findings[#findings + 1] = left.why
      stop = left.why.at
    end
  end
end

local function belongs(message, tag)
  for _, slot in ipairs(message.slots) do
    if slot.type.tag == tag then
      return true
    end
  end
  return tag == messageIdType.tag
end

-- Bytes behind the last IE that the message takes are ignored. Tells what they are.
local function explain_rest(walk, root, message)
  local left = walk.length - walk.at
  if left == 0 then
    return
  end
  local reason, tag = "Ignored", tag_at(walk)
  local last = walk.leftOut[#walk.leftOut]
  if left >= headerSize then
    reason = "IgnoredFrom"
    if not belongs(message, tag) then
      reason = "IgnoredForeign"
    elseif not last or last.at ~= walk.at then
      reason = "IgnoredUnordered"
    end
  end
  local values = { number = left, found = tag, message = message }
  walk.notes[#walk.notes + 1] = finding(root, walk.at, reason, values)
  add_left_out(walk, walk.at, walk.notes)
end

local function read_message_id(walk, root)
  local node = new_node(root, messageIdType, messageIdType.name)
  local fault = read_value(walk, node)
  if fault then
    return nil, fault
  end
  root[1] = node
  local message = messagesById[node.number]
  return message, not message and finding(node, headerSize, "UnknownMessageId", node)
end

-- The parts of a message, in the most frequent case without a look at its MessageId alone.
local function read_parts(walk, root)
  local likely = messagesById[byte(walk.bytes, messageIdType.size)]
  local taken = likely and take_lead(walk, root, likely) or 0
  if taken > 0 then
    return likely, read_rest(walk, root, likely, taken) -- the first one taken is no slot
  end
  local message, fault = read_message_id(walk, root)
  return message, fault or read_rest(walk, root, message, 1)
end

-- Reads the bytes of one message, a string. The result: the message's row if it is known, the IEs
-- read as nodes below `root`, the verdict (`valid`, `invalid` or `refused`), the faults that it
-- rests on, notes on what was let pass, and how many bytes were taken.
local function read_message(bytes)
  local walk = { bytes = bytes, length = #bytes, at = 0, notes = {}, leftOut = {} }
  local root = { lead = false, leadAt = 0 }
  local result = { root = root, faults = {}, notes = walk.notes, taken = 0, verdict = "refused" }
  local message, fault = read_parts(walk, root)
  result.message = message
  if fault then
    result.faults[1] = fault
    add_left_out(walk, fault.at, result.faults)
    return result
  end
  local unmet = unmet_condition(walk, root, message)
  result.verdict = "valid"
  if unmet then
    result.verdict = "invalid"
    result.faults[1] = needed(root, unmet, walk.at)
  end
  explain_rest(walk, root, message)
  result.taken = walk.at
  return result
end

-- ---- Readable forms ----------------------------------------------------------------------------

local function hex(bytes)
  return (bytes:gsub(".", function(c)
    return string.format("%02x", byte(c))
  end))
end

-- The half bytes as hex digits, the low half first.
local function half_bytes(bytes)
  return (hex(bytes):gsub("(.)(.)", "%2%1"))
end

local forms = {}

-- One digit in each half byte, up to a last one of 15, or a byte of two; behind it stand only bytes
-- of 255, or of 0.
local function packed_digits(bytes)
  local digits, rest = half_bytes(bytes):match("^(%d*)(.*)$")
  local filler = #digits % 2 == 1 and "^f" or "^ff"
  if rest == "" or rest:find(filler .. "f*$") or rest:find(filler .. "0*$") then
    return digits
  end
end

-- Up to 15 digits, as ASCII with zeros behind them or as half bytes.
function forms.Digits(bytes)
  local digits = bytes:match("^(%d+)%z*$") or packed_digits(bytes)
  return digits and #digits > 0 and #digits <= 15 and digits or nil
end

-- Half bytes: three digits of the MCC, the third of the MNC or 15, the first and second of the MNC.
function forms.MccMnc(bytes)
  local mcc, third, mnc = half_bytes(bytes):match("^(%d%d%d)([%df])(%d%d)$")
  return mcc and mcc .. "-" .. mnc .. third:gsub("f", "")
end

function forms.HexNumber(bytes)
  return tonumber(hex(bytes), 16)
end

-- A byte string as people read it, where its row names a form and the bytes have it; else in hex.
local function readable(type, bytes)
  return forms[type.form](bytes) or hex(bytes)
end

local engine = {
  rows = rows,
  read_message = read_message,
  parts_of = parts_of,
  words = words,
  readable = readable,
  messagesById = messagesById,
  headerSize = headerSize,
}

if not Proto then
  return engine -- Wireshark is not here
end

