-- ---- The reading part --------------------------------------------------------------------------
--
-- Plain Lua, for 5.2 and later: it knows rows and no names, and nothing of Wireshark. It reads the
-- bytes of one message as the library does, IE by IE, and tells what they hold, where and why they
-- stop, and what was let pass.

local byte, find = string.byte, string.find

local tagSize, headerSize = 2, 6

-- ---- Rows, linked ------------------------------------------------------------------------------

local typesByName, typesByTag, messagesById = {}, {}, {}

-- `mustFill` are the slots that are not to stay empty when they are called for.
local function link_slots(owner)
  owner.mustFill = {}
  for _, slot in ipairs(owner.slots) do
    slot.type = typesByName[slot.type]
    slot.tag = slot.type.tag
    slot.condition = slot.condition and rows.conditions[slot.condition]
    slot.isMandatory = slot.presence == "mandatory"
    if slot.condition and owner.rule ~= "none" then
      table.insert(owner.mustFill, slot)
    end
  end
end

for _, type in ipairs(rows.types) do
  typesByName[type.name], typesByTag[type.tag] = type, type
  type.label = type.name .. " [" .. type.tag .. "]"
  type.isComposite = type.shape == "sequence" or type.shape == "compositeList"
  if type.shape == "scalar" then
    type.greatest = math.min(type.greatest, 256 ^ type.width - 1) -- what travels of a code word
    type.size = headerSize + type.width
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
  if type.slots then
    link_slots(type)
  end
end
local messageIdType = typesByName.MessageId
for _, message in ipairs(rows.messages) do
  link_slots(message)
  messagesById[message.id] = message
end

-- ---- Patterns ----------------------------------------------------------------------------------
--
-- What an IE may look like when nothing is to be said about it, by its size: one call of
-- `string.find` then takes all of it, where reading it IE by IE is most of the time that a long
-- capture takes. A pattern may miss bytes that are good; they are read.

local greatestSize, mostPatterns = 255, 64 -- what is longer or varies more matches seldom

-- These mean something in a set, which is made smaller until none of them is a bound.
local isSpecial = { [0x25] = true, [0x5D] = true, [0x5E] = true } -- % ] ^

local function byte_pattern(first, last)
  if first == 0 and last == 255 then
    return "."
  end
  while isSpecial[first] do
    first = first + 1
  end
  while isSpecial[last] do
    last = last - 1
  end
  return "[" .. string.char(first) .. "-" .. string.char(last) .. "]"
end

-- Numbers of which any byte will do behind the first that may differ from 0.
local function number_pattern(least, greatest, width)
  local unit = 256 ^ (width - 1)
  local last = math.floor((greatest + 1) / unit) - 1
  if last < 0 then
    return "\0" .. number_pattern(least, greatest, width - 1)
  end
  return byte_pattern(math.ceil(least / unit), last) .. ("."):rep(width - 1)
end

-- One IE behind the other. Of two patterns for one size either will do.
local function append(patterns, others)
  local result, count = {}, 0
  for size, pattern in pairs(patterns) do
    for otherSize, other in pairs(others) do
      local whole = size + otherSize
      if whole <= greatestSize and not result[whole] then
        result[whole], count = pattern .. other, count + 1
      end
    end
  end
  return count <= mostPatterns and result or {}
end

local function add_all(patterns, others)
  for size, pattern in pairs(others) do
    patterns[size] = pattern
  end
end

local contents = {}

function contents.scalar(type)
  return { [type.width] = number_pattern(type.least, type.greatest, type.width) }
end

function contents.bytes(type)
  return type.least == type.greatest and { [type.least] = ("."):rep(type.least) } or {}
end

function contents.list(type)
  local result, items = {}, { [0] = "" }
  for count = 0, type.greatest do
    add_all(result, count >= type.least and items or {})
    items = append(items, type.item.patterns)
  end
  return result
end

contents.compositeList = contents.list

function contents.record(type)
  local result = { [0] = "" }
  for _, member in ipairs(type.members) do
    result = append(result, member.patterns)
  end
  return result
end

-- `mayFollow` are the tags of optional IEs: one that is missing would be taken if it stood behind.
function contents.sequence(type)
  local result = { [0] = "" }
  for _, slot in ipairs(type.slots) do
    local isTaken = type.mayFollow[slot.tag]
    local longer = append(result, isTaken and {} or slot.type.patterns)
    if slot.presence ~= "optional" then
      result = {}
    end
    add_all(result, slot.condition and {} or longer)
    add_all(type.mayFollow, slot.type.mayFollow)
    if slot.presence == "optional" then
      type.mayFollow[slot.tag] = true
    end
  end
  return result
end

local function header_pattern(tag, length)
  local header = string.char(math.floor(tag / 256), tag % 256, 0, 0, 0, length)
  return (header:gsub("%p", "%%%0"))
end

-- Each type stands behind those that it is made of.
for _, type in ipairs(rows.types) do
  type.mayFollow, type.patterns, type.patternOf = {}, {}, {}
  if type.item then
    add_all(type.mayFollow, type.item.mayFollow)
  end
  for length, content in pairs(contents[type.shape](type)) do
    local whole = header_pattern(type.tag, length) .. content
    type.patterns[headerSize + length] = whole
    type.patternOf[length] = "^" .. whole
  end
end

-- A type's size and pattern, if there is one alone, whatever follows.
local function only_pattern(type)
  local size, pattern = next(type.patterns)
  local isOnly = size and not next(type.patterns, size) and not next(type.mayFollow)
  return isOnly and size, pattern
end

-- The IEs with which a message or sequence always begins, as long as each has one pattern alone:
-- `lead` holds them in order, and by type the byte at which each begins.
local function link_lead(owner, slots)
  owner.lead, owner.leadPattern = {}, "^"
  local lead, at = owner.lead, 0
  for _, slot in ipairs(slots) do
    local size, pattern = only_pattern(slot.type)
    if not slot.isMandatory or not size or lead[slot.type] then
      return
    end
    lead[#lead + 1], lead[slot.type] = { type = slot.type, name = slot.name, at = at }, at
    owner.leadPattern = owner.leadPattern .. pattern
    at = at + size
  end
end

for _, type in ipairs(rows.types) do
  if type.slots then
    link_lead(type, type.slots)
  end
end
for _, message in ipairs(rows.messages) do
  local id = { type = messageIdType, name = messageIdType.name, isMandatory = true }
  link_lead(message, { id, table.unpack(message.slots) })
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

-- A sentence in pieces: each second one is called for what stands there. Taking the text apart
-- whenever something is found would take a tenth of the time of a long capture.
local function pieces_of(text)
  local pieces, at = {}, 1
  for literal, name, form, behind in text:gmatch("([^{]*){(%w+):?(%w*)}()") do
    pieces[#pieces + 1], at = literal, behind
    pieces[#pieces + 1] = placeHolders[name] or function(type, values)
      return numberForms[form](values[name], type)
    end
  end
  pieces[#pieces + 1] = text:sub(at)
  return pieces
end

local sentences = {}
for reason, text in pairs(rows.reasons) do
  sentences[reason] = pieces_of(text)
end

local function sentence(reason, type, values)
  local pieces = sentences[reason]
  local text = pieces[1]
  for i = 2, #pieces, 2 do
    text = text .. pieces[i](type, values) .. pieces[i + 1]
  end
  return text
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

local places = {} -- "byte 27 (0x1b)", by the byte: most findings are about few places

local function place_text(at)
  local form = at <= 0xFF and "byte %d (0x%02x)" or at <= 0xFFFF and "byte %d (0x%04x)" or
    "byte %d (0x%08x)"
  places[at] = places[at] or string.format(form, at, at)
  return places[at]
end

local function words(found)
  local path = found.path == "" and "" or ", " .. found.path
  return place_text(found.at) .. path .. ": " .. found.what
end

-- ---- Values ------------------------------------------------------------------------------------
--
-- A node is an IE or nested TLV: its row, its name and place in its parent, the byte at which its
-- header begins, its size, and its parts as an array. One that a pattern took is unread until
-- somebody looks. Long captures spend most of their time here: loops use indices, as `ipairs` makes
-- a call each time, and what changes at each step is no field.

local none = {}

local function add(list, item)
  list = list == none and {} or list
  list[#list + 1] = item
  return list
end

-- The message that is being read: its bytes and the position in them, what was noted, and what was
-- left out.
local input, position, notes, leftOut

local function begin_reading(bytes, at)
  input, position, notes, leftOut = bytes, at, none, none
end

-- With what most have at once, and room for two members more: a table that grows is slow.
-- `declared` is the length in the header once that was read.
local function new_node(parent, type, name, index)
  local node = { parent = parent, type = type, name = name, at = 0, declared = false, size = 0 }
  if index then
    node.index = index
  end
  return node
end

-- The tag at the position, 0 if there is not enough for one.
local function tag_here()
  local high, low = byte(input, position + 1, position + tagSize)
  return low and high * 256 + low or 0
end

local function number_at(bytes, at, width)
  local a, b, c, d = byte(bytes, at + 1, at + width)
  if width == 1 then
    return a
  end
  return width == 2 and a * 256 + b or ((a * 256 + b) * 256 + c) * 256 + d
end

-- Takes the IEs with which `owner` begins, if their pattern is there. They become nodes only when
-- somebody looks: most messages of a long capture are not looked at. Tells how many were taken; if
-- none, they are read one at a time.
local function take_lead(owner, row)
  local _, behind = find(input, row.leadPattern, position + 1)
  if not behind then
    return 0
  end
  owner.lead, owner.leadAt = row.lead, position
  position = behind
  return #row.lead
end

-- Takes one IE or nested TLV in the same way; what is in it is read when somebody looks.
local function take_whole(owner, type, name, index)
  local start, pattern = position, type.patternOf[byte(input, position + headerSize)]
  if not pattern then
    return false
  end
  local _, behind = find(input, pattern, start + 1)
  if not behind then
    return false
  end
  position = behind
  if type.isComposite and type.mayFollow[tag_here()] then
    position = start
    return false
  end
  owner[#owner + 1] = { type = type, name = name, at = start, index = index, isUnread = true }
  return true
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

local function header_fault(node)
  local at, left, tag = position, #input - position, tag_here()
  if left == 0 then
    return finding(node, at, "BytesEnd")
  end
  if left >= tagSize and tag ~= node.type.tag then
    return finding(node, at, "WrongTag", { found = tag })
  end
  return finding(node, at, "HeaderCut", { number = left })
end

-- Reads the header of an IE or nested TLV and moves behind it.
local function read_header(node)
  local at = position
  local a, b, c, d, e, f = byte(input, at + 1, at + headerSize)
  node.at = at
  if not f or a * 256 + b ~= node.type.tag then
    return header_fault(node)
  end
  node.declared = ((c * 256 + d) * 256 + e) * 256 + f
  position = at + headerSize
end

local function too_few_left(node)
  local values = { number = node.declared, other = #input - node.at - headerSize }
  return finding(node, node.at + tagSize, "LengthBeyondBytes", values)
end

-- Notes a length field that disagrees with what was read.
local function note_length(node)
  local taken = position - node.at - headerSize
  if node.declared ~= taken then
    local values = { number = node.declared, other = taken }
    notes = add(notes, finding(node, node.at + tagSize, "LengthDiffers", values))
  end
end

local readers = {}

-- Reads a whole primitive IE or nested TLV, moving behind it on success.
local function read_value(node)
  local fault = read_header(node) or readers[node.type.shape](node)
  node.size = position - node.at
  return fault
end

function readers.scalar(node)
  local type, at = node.type, position
  if node.declared ~= type.width then
    return finding(node, node.at + tagSize, "WrongWidth", { number = node.declared })
  end
  if node.declared > #input - at then
    return too_few_left(node)
  end
  node.number = number_at(input, at, type.width)
  position = at + type.width
end

function readers.bytes(node)
  local type = node.type
  if node.declared > #input - position then
    return too_few_left(node)
  end
  if node.declared > type.capacity then
    return finding(node, node.at + tagSize, "LengthBeyondArray", { number = node.declared })
  end
  node.count = node.declared
  position = position + node.declared
end

-- Reads or takes a part of a record or list.
local function read_part(owner, type, index)
  if take_whole(owner, type, type.name, index) then
    return nil
  end
  local part = new_node(owner, type, type.name, index)
  local fault = read_value(part)
  if not fault then
    owner[#owner + 1] = part
  end
  return fault
end

-- Members are bounded by the bytes that remain and not by the record, but each must begin before
-- the record's length is used up.
function readers.record(node)
  local start, members = position, node.type.members
  if node.declared > #input - start then
    return too_few_left(node)
  end
  for i = 1, #members do
    if position - start >= node.declared then
      local member = new_node(node, members[i], members[i].name)
      local values = { type = node.type, number = position - start }
      return finding(member, position, "MemberMissing", values)
    end
    local fault = read_part(node, members[i])
    if fault then
      return fault
    end
  end
  note_length(node)
end

function readers.list(node)
  local start, type, item = position, node.type, node.type.item
  if node.declared > #input - start then
    return too_few_left(node)
  end
  node.count = 0
  while position - start < node.declared do
    if node.count == type.capacity then
      local extra = new_node(node, item, item.name, node.count)
      return finding(extra, position, "TooManyItems", { type = type })
    end
    local fault = read_part(node, item, node.count)
    if fault then
      return fault
    end
    node.count = node.count + 1
  end
  note_length(node)
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

-- What makes a value invalid that was read, if anything does. What a pattern took is valid.
local function find_invalid(node)
  local shape, fault = node.type.shape, nil
  if node.isUnread then
    return nil
  elseif shape == "scalar" then
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

local function is_called_for(owner, slot)
  local condition = slot.condition
  local at = place_in(owner, condition.type)
  local number = at and number_at(input, at + headerSize, condition.type.width)
  return number ~= nil and (condition.values[number] or false) == condition.inside
end

-- The first conditional slot that is not filled although it is called for. None is filled that is
-- not.
local function unmet_condition(owner, row)
  for i = 1, #row.mustFill do
    local slot = row.mustFill[i]
    if not owner[slot] and is_called_for(owner, slot) then
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
local function read_composite(node)
  local type = node.type
  local fault = read_header(node)
  if fault then
    return "absent", fault
  end
  if type.slots then
    fault = read_rest(node, type, take_lead(node, type) + 1)
  else
    fault = read_elements(node, type)
  end
  node.size = position - node.at
  if fault then
    return "absent", fault
  end
  note_length(node)
  local unmet = type.slots and unmet_condition(node, type)
  if unmet then
    return "invalid", needed(node, unmet, position)
  end
  fault = type.item and count_fault(node, node.at)
  return fault and "invalid" or "valid", fault
end

local function read_child(node)
  if node.type.isComposite then
    return read_composite(node)
  end
  local fault = read_value(node)
  if fault then
    return "absent", fault
  end
  fault = find_invalid(node)
  return fault and "invalid" or "valid", fault
end

-- Why a child that is not taken refuses its owner, if it does.
local function refusal(row, slot, node, outcome, fault, isCalledFor)
  if slot.isMandatory then
    return fault
  end
  local stoodThere = tag_here() == slot.tag
  if outcome == "valid" then
    fault = finding(node, position, "NotCalledFor", slot)
  end
  if slot.condition then
    if outcome == "absent" and isCalledFor and not stoodThere and fault.reason ~= "HeaderCut" then
      local values = { condition = slot.condition, found = tag_here() }
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
    leftOut = add(leftOut, { at = position, slot = slot, why = fault })
  end
end

-- Goes back to where a child began that is not taken; what was noted in it does not count.
local function go_back(at, noteCount)
  position = at
  for i = #notes, noteCount + 1, -1 do
    notes[i] = nil
  end
end

local function note_filled(owner, slot)
  if slot.condition then
    owner[slot] = true
  end
end

-- Tries the child of one slot at the current position and moves behind it if it is taken. Returns
-- why the owner is refused, if it is.
local function read_slot(owner, row, slot, isCalledFor)
  if isCalledFor and take_whole(owner, slot.type, slot.name) then
    note_filled(owner, slot)
    return nil
  end
  local start, noteCount = position, #notes
  local node = new_node(owner, slot.type, slot.name)
  local outcome, fault = read_child(node)
  if outcome == "valid" and isCalledFor then
    owner[#owner + 1] = node
    note_filled(owner, slot)
    return nil
  end
  go_back(start, noteCount)
  fault = refusal(row, slot, node, outcome, fault, isCalledFor)
  if fault and node.type.isComposite and node.declared then
    owner[#owner + 1] = node -- shows how far it went
  end
  return fault
end

-- The bytes have ended before slot `next`.
local function end_of_bytes(owner, row, next)
  for i = next, #row.slots do
    local slot = row.slots[i]
    if slot.isMandatory then
      return finding(new_node(owner, slot.type, slot.name), position, "BytesEnd")
    end
    local mayRefuse = slot.condition and row.rule == "dropUncalledRequireAtEnd"
    if mayRefuse and is_called_for(owner, slot) then
      return needed(owner, slot, position)
    end
  end
end

-- The slots from `first` on. One that nothing calls for is passed over unless its IE stands there.
function read_rest(owner, row, first)
  local slots, tag = row.slots, nil
  for i = first, #slots do
    if position == #input then
      return end_of_bytes(owner, row, i)
    end
    local slot = slots[i]
    local isCalledFor = not slot.condition or is_called_for(owner, slot)
    local isAwaited = slot.isMandatory or (slot.condition and isCalledFor)
    tag = isAwaited and slot.tag or tag or tag_here()
    if slot.tag == tag then
      local fault = read_slot(owner, row, slot, isCalledFor)
      if fault then
        return fault
      end
      tag = nil
    end
  end
end

-- Reads or takes an element of a list.
local function read_element(list, type)
  if take_whole(list, type, type.name, list.count) then
    return nil
  end
  local start, noteCount = position, #notes
  local element = new_node(list, type, type.name, list.count)
  local outcome, fault = read_composite(element)
  if element.declared then
    list[#list + 1] = element
  end
  if outcome ~= "valid" then
    go_back(start, noteCount)
  end
  return fault
end

-- A list's length is what its elements may take together; each is bounded by the bytes that remain.
function read_elements(list, type)
  local start = position
  list.count = 0
  while position - start < list.declared do
    if position == #input then
      local values = { number = list.declared, other = position - start }
      return finding(list, start - headerSize + tagSize, "ListEnds", values)
    end
    local fault = read_element(list, type.item)
    if fault then
      return fault
    end
    list.count = list.count + 1
    if position - start > list.declared then
      local element = new_node(list, type.item, type.item.name, list.count - 1)
      local values = { owner = path_of(list), number = list.declared }
      return finding(element, position, "ElementBeyondList", values)
    end
  end
end

-- An owner's parts, all of them nodes: reads what was taken.
local function parts_of(bytes, owner)
  local lead = owner.lead or none
  for i = #owner, 1, -1 do
    owner[i + #lead] = owner[i]
  end
  for i, part in ipairs(lead) do
    local at = owner.leadAt + part.at
    owner[i] = { type = part.type, name = part.name, at = at, isUnread = true }
  end
  owner.lead = nil
  for i, part in ipairs(owner) do
    if part.isUnread then
      owner[i] = new_node(owner, part.type, part.name, part.index)
      begin_reading(bytes, part.at)
      read_child(owner[i])
    end
  end
  return owner
end

-- ---- The message -------------------------------------------------------------------------------

-- Adds what was left out at the position where reading stopped, and what, inside that, was left out
-- where it stopped in its turn.
local function add_left_out(stop, findings)
  for i = #leftOut, 1, -1 do
    local left = leftOut[i]
    if left.at == stop then
      left.why.what = left.why.what .. sentence("LeftOut", left.slot, {})
      findings[#findings + 1] = left.why
      stop = left.why.at
    end
  end
end

local function belongs(message, tag)
  for _, slot in ipairs(message.slots) do
    if slot.tag == tag then
      return true
    end
  end
  return tag == messageIdType.tag
end

-- Bytes behind the last IE that the message takes are ignored. Tells what they are.
local function explain_rest(root, message)
  local left = #input - position
  if left == 0 then
    return
  end
  local reason, tag = "Ignored", tag_here()
  local last = leftOut[#leftOut]
  if left >= headerSize then
    reason = "IgnoredFrom"
    if not belongs(message, tag) then
      reason = "IgnoredForeign"
    elseif not last or last.at ~= position then
      reason = "IgnoredUnordered"
    end
  end
  local values = { number = left, found = tag, message = message }
  notes = add(notes, finding(root, position, reason, values))
  add_left_out(position, notes)
end

local function read_message_id(root)
  local node = new_node(root, messageIdType, messageIdType.name)
  local fault = read_value(node)
  if fault then
    return nil, fault
  end
  root[1] = node
  local message = messagesById[node.number]
  return message, not message and finding(node, headerSize, "UnknownMessageId", node)
end

-- The parts of a message, in the most frequent case without a look at its MessageId alone.
local function read_parts(root)
  local likely = messagesById[byte(input, messageIdType.size)]
  local taken = likely and take_lead(root, likely) or 0
  if taken > 0 then
    return likely, read_rest(root, likely, taken) -- the first one taken is no slot
  end
  local message, fault = read_message_id(root)
  return message, fault or read_rest(root, message, 1)
end

-- Reads the bytes of one message, a string. The result: the message's row if it is known, the IEs
-- read as nodes below `root`, the verdict (`valid`, `invalid` or `refused`), the faults that it
-- rests on, notes on what was let pass, and how many bytes were taken.
local function read_message(bytes)
  begin_reading(bytes, 0)
  local root = { lead = false, leadAt = 0 }
  local message, fault = read_parts(root)
  local faults, verdict = none, "valid"
  if fault then
    faults, verdict = { fault }, "refused"
    add_left_out(fault.at, faults)
  else
    local unmet = unmet_condition(root, message)
    if unmet then
      faults, verdict = { needed(root, unmet, position) }, "invalid"
    end
    explain_rest(root, message)
  end
  return {
    message = message,
    root = root,
    verdict = verdict,
    faults = faults,
    notes = notes,
    taken = fault and 0 or position,
  }
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

