-- ---- Wireshark's part --------------------------------------------------------------------------

local tarn = Proto("tarn", "Tarn Signalling")

tarn.prefs.ports = Pref.range("Ports", "",
  "Ports of UDP, SCTP and TCP that carry messages. Elsewhere they are found by their first bytes.",
  65535)
tarn.prefs.link_types = Pref.range("User link types", "147",
  "Link types, 147 to 162, of captures that hold one message a packet and nothing around it.", 162)
tarn.prefs.nas = Pref.bool("Dissect NAS messages", true,
  "Hand the content of NasMsg to the dissector of GSM and UMTS NAS.")

-- ---- Fields ------------------------------------------------------------------------------------

local fields = {
  message = ProtoField.string("tarn.message", "Message"),
  verdict = ProtoField.string("tarn.verdict", "Verdict", base.NONE,
    "valid; invalid: decodes and breaks a rule; refused: does not decode"),
  finding = ProtoField.string("tarn.finding", "Finding"),
  findingAt = ProtoField.uint32("tarn.finding.offset", "Byte of the message", base.DEC_HEX),
  findingPath = ProtoField.string("tarn.finding.path", "IE"),
  findingReason = ProtoField.string("tarn.finding.reason", "Reason"),
  findingKind = ProtoField.string("tarn.finding.kind", "Kind of reason"),
  length = ProtoField.uint32("tarn.length", "Length in front", base.DEC),
  skipped = ProtoField.bytes("tarn.skipped", "Bytes that are no message"),
  requestIn = ProtoField.framenum("tarn.request_in", "Request in", base.NONE, frametype.REQUEST),
  responseIn = ProtoField.framenum("tarn.response_in", "Response in", base.NONE,
    frametype.RESPONSE),
  responseTime = ProtoField.relative_time("tarn.response_time", "Response time"),
}

local experts = {
  refused = ProtoExpert.new("tarn.refused", "Does not decode", expert.group.MALFORMED,
    expert.severity.ERROR),
  invalid = ProtoExpert.new("tarn.invalid", "Decodes and is not valid", expert.group.PROTOCOL,
    expert.severity.WARN),
  letPass = ProtoExpert.new("tarn.let_pass", "Let pass", expert.group.PROTOCOL,
    expert.severity.NOTE),
  skipped = ProtoExpert.new("tarn.no_message", "Bytes that are no message",
    expert.group.UNDECODED, expert.severity.WARN),
}

local uintFields = { ProtoField.uint8, ProtoField.uint16, [4] = ProtoField.uint32 }

-- Valid byte strings that are shown as a number are of one length.
local function make_field(type)
  local filter, name, term = "tarn." .. type.name:lower(), type.name, type.term
  if type == messageIdType then
    local names = {}
    for id, message in pairs(messagesById) do
      names[id] = message.name
    end
    return ProtoField.uint8(filter, name, base.DEC, names, nil, term)
  elseif type.shape == "scalar" then
    return uintFields[type.width](filter, name, base.DEC_HEX, nil, nil, term)
  elseif type.form == "HexNumber" then
    return uintFields[type.greatest](filter, name, base.HEX, nil, nil, term)
  elseif type.form == "Dotted" then
    return ProtoField.ipv4(filter, name, term)
  elseif type.form then
    return ProtoField.string(filter, name, base.NONE, term)
  elseif type.shape == "bytes" then
    return ProtoField.bytes(filter, name, base.SPACE, term)
  end
  return ProtoField.none(filter, name, term)
end

local allFields, fieldOf = {}, {}
for _, field in pairs(fields) do
  allFields[#allFields + 1] = field
end
for _, type in ipairs(rows.types) do
  fieldOf[type] = make_field(type)
  allFields[#allFields + 1] = fieldOf[type]
end
tarn.fields = allFields

local allExperts = {}
for _, field in pairs(experts) do
  allExperts[#allExperts + 1] = field
end
tarn.experts = allExperts

-- ---- Trees -------------------------------------------------------------------------------------
--
-- A view is one message in a packet: the packet's buffer, the message's first byte there, and its
-- bytes as a string.

local lengthSize = 4 -- of what stands in front of a message in a stream

local dissectsNas = true -- as the preference says, which takes a search to ask
local nasType = typesByName.NasMsg
local nasDissector = Dissector.get("gsm_a_dtap")

-- A NAS message that is malformed throws through the call, and leaves behind that nothing more may
-- be desegmented: the rest of a TCP stream would be lost.
local function dissect_nas(range, pinfo, item)
  local canDesegment = pinfo.can_desegment
  pcall(nasDissector.call, nasDissector, range:tvb(), pinfo, item) -- it has told what is wrong
  pinfo.can_desegment = canDesegment
end

local function range_of(view, at, size)
  return view.tvb(view.start + at, size)
end

local function dotted(node, bytes)
  local parts = {}
  for i, part in ipairs(parts_of(bytes, node)) do
    parts[i] = part.number
  end
  return table.concat(parts, ".")
end

local function add_bytes(tree, node, view, pinfo)
  local type, at = node.type, node.at + headerSize
  if type.form then
    local bytes = view.bytes:sub(at + 1, at + node.count)
    return tree:add(fieldOf[type], range_of(view, node.at, node.size), readable(type, bytes))
  end
  local value = range_of(view, at, node.count)
  local item = tree:add(fieldOf[type], value)
  if node.count == 0 then
    item:set_text(type.name .. ": 0 bytes")
  elseif type == nasType and dissectsNas then
    dissect_nas(value, pinfo, item)
  end
end

local add_node

local function add_parent(tree, node, view, pinfo)
  local type = node.type
  local item = tree:add(fieldOf[type], range_of(view, node.at, node.size))
  local title = node.index and type.name .. "[" .. node.index .. "]" or node.name
  if type.item then
    title = title .. ": " .. counted(node.count, units[type.shape])
  end
  item:set_text(title)
  for _, child in ipairs(parts_of(view.bytes, node)) do
    add_node(item, child, view, pinfo)
  end
end

function add_node(tree, node, view, pinfo)
  local type = node.type
  if type.shape == "scalar" then
    tree:add(fieldOf[type], range_of(view, node.at, node.size), node.number)
  elseif type.shape == "bytes" then
    add_bytes(tree, node, view, pinfo)
  elseif type.form == "Dotted" then
    local address = Address.ip(dotted(node, view.bytes))
    tree:add(fieldOf[type], range_of(view, node.at, node.size), address)
  else
    add_parent(tree, node, view, pinfo)
  end
end

-- A finding is shown with the byte that it is about, or with the last one if the bytes have ended.
local function add_finding(tree, found, kind, view)
  local at, text = math.min(found.at, #view.bytes - 1), words(found)
  local range = range_of(view, at, 1)
  local item = tree:add(fields.finding, range, text)
  item:add_proto_expert_info(kind, text)
  item:add(fields.findingAt, range, found.at)
  item:add(fields.findingPath, range, found.path)
  item:add(fields.findingReason, range, found.what)
  item:add(fields.findingKind, range, found.reason)
end

-- ---- Requests and responses --------------------------------------------------------------------

local responsesTo = {
  UeContextRequest = { "UeContextAccept", "UeContextReject" },
  IuReleaseRequest = { "IuReleaseCommand" },
  IuReleaseCommand = { "IuReleaseComplete" },
  SecurityModeCommand = { "SecurityModeComplete", "SecurityModeReject" },
  RabAssignmentRequest = { "RabAssignmentResponse" },
  RabReleaseRequest = { "RabReleaseResponse" },
  UserPlaneConfigRequest = { "UserPlaneConfigResponse" },
  UserPlaneModifyRequest = { "UserPlaneModifyResponse" },
  RelocationRequired = { "RelocationCommand", "RelocationFailure" },
  HandoverRequest = { "HandoverReqAck", "HandoverFailure" },
  AccessControlRequest = { "AccessControlResponse" },
}

-- A request and its responses belong together if they agree in each number that all of them must
-- carry: the UE, and what else tells one procedure from another.
local function count_mandatory_numbers(message, counts)
  for _, slot in ipairs(message.slots) do
    if slot.isMandatory and slot.type.shape == "scalar" then
      counts[slot.type] = (counts[slot.type] or 0) + 1
    end
  end
end

local messagesByName = {}
for _, message in ipairs(rows.messages) do
  messagesByName[message.name] = message
end

local function make_procedure(request, responses)
  local procedure, counts = { types = {}, waiting = {} }, {}
  count_mandatory_numbers(request, counts)
  for _, response in ipairs(responses) do
    count_mandatory_numbers(messagesByName[response], counts)
  end
  for _, slot in ipairs(request.slots) do
    if counts[slot.type] == 1 + #responses then
      table.insert(procedure.types, slot.type)
    end
  end
  return procedure
end

-- By the message's row: the procedure of which it is the request, or a response.
local asRequest, asResponse = {}, {}
for name, responses in pairs(responsesTo) do
  local request = messagesByName[name]
  asRequest[request] = make_procedure(request, responses)
  for _, response in ipairs(responses) do
    asResponse[messagesByName[response]] = asRequest[request]
  end
end

local function is_paired(message)
  return asRequest[message] or asResponse[message]
end

-- Links of a request and its response, counted from 1, in columns of numbers: long captures have
-- many, and a table for each would be much to look through when memory is collected.
local links

local function forget_links()
  links = {
    count = 0,
    request = {}, -- its packet
    response = {},
    seconds = {}, -- when the request came; then until the response
    next = {}, -- the next request that waits under the same key
    youngest = {}, -- the last one in the chain that begins here
    asked = {}, -- the link of a request, by its place in the capture
    answered = {}, -- that of a response
  }
end

forget_links()

-- Two messages of one packet begin at different bytes.
local mostBytes = 2 ^ 20

local function place_of(view, pinfo)
  return pinfo.number * mostBytes + view.tvb:offset() + view.start
end

-- Both ends, the same whichever of them sends: their ports as one number, and the address at the
-- greater port, which is that of who connected; both addresses where the ports are equal.
local function ends_of(pinfo)
  local port, otherPort = pinfo.src_port, pinfo.dst_port
  if port > otherPort then
    return port * 65536 + otherPort, tostring(pinfo.src)
  elseif port < otherPort then
    return otherPort * 65536 + port, tostring(pinfo.dst)
  end
  local from, to = tostring(pinfo.src), tostring(pinfo.dst)
  return port, from < to and from .. " " .. to or to .. " " .. from
end

-- The addresses, and the numbers that the procedure goes by, as they stand in the message.
local function key_of(procedure, result, view, addresses)
  local key = addresses
  for _, type in ipairs(procedure.types) do
    local at = place_in(result.root, type)
    key = key .. view.bytes:sub(at + 1, at + type.size)
  end
  return key
end

local function waiting_at(procedure, ports)
  local waiting = procedure.waiting[ports] or {}
  procedure.waiting[ports] = waiting
  return waiting
end

-- Requests of one key wait in a chain, the oldest one first: a capture may lack many responses.
local function add_request(waiting, key, link)
  local oldest = waiting[key] or link
  if oldest ~= link then
    links.next[links.youngest[oldest]] = link
  end
  waiting[key], links.youngest[oldest] = oldest, link
end

local function take_request(waiting, key)
  local oldest = waiting[key]
  local following = oldest and links.next[oldest]
  waiting[key] = following
  if following then
    links.youngest[following] = links.youngest[oldest]
  end
  return oldest
end

local function link_message(result, view, pinfo)
  local place, seconds, ports, addresses = place_of(view, pinfo), pinfo.rel_ts, ends_of(pinfo)
  local packet = math.floor(place / mostBytes)
  local asked, answered = asRequest[result.message], asResponse[result.message]
  if answered then
    local key = key_of(answered, result, view, addresses)
    local link = take_request(waiting_at(answered, ports), key)
    if link then
      links.response[link], links.answered[place] = packet, link
      links.seconds[link] = seconds - links.seconds[link]
    end
  end
  if asked then
    local link = links.count + 1
    links.count, links.asked[place] = link, link
    links.request[link], links.seconds[link] = packet, seconds
    add_request(waiting_at(asked, ports), key_of(asked, result, view, addresses), link)
  end
end

local function add_links(tree, place)
  local link = links.asked[place]
  if link and links.response[link] then
    tree:add(fields.responseIn, links.response[link]):set_generated()
  end
  link = links.answered[place]
  if link then
    local seconds = links.seconds[link]
    local whole = math.floor(seconds)
    local nanoseconds = math.floor((seconds - whole) * 1e9 + 0.5)
    tree:add(fields.requestIn, links.request[link]):set_generated()
    tree:add(fields.responseTime, NSTime.new(whole, nanoseconds)):set_generated()
  end
end

function tarn.init()
  forget_links()
  for _, procedure in pairs(asRequest) do
    procedure.waiting = {}
  end
end

-- ---- A message ---------------------------------------------------------------------------------

local ownDissector -- once it is registered
local srntiType, ueType = typesByName.Srnti, typesByName.AcUeId

-- "UeContextAccept, S-RNTI 0x12001, UE 7001, valid"
local function summary(result, bytes)
  local root, message, verdict = result.root, result.message, result.verdict
  local name = message and message.name or "No known message"
  local srnti, ue = place_in(root, srntiType), place_in(root, ueType)
  srnti = srnti and number_at(bytes, srnti + headerSize, srntiType.width)
  ue = ue and number_at(bytes, ue + headerSize, ueType.width)
  if srnti and ue then
    return string.format("%s, S-RNTI 0x%x, UE %d, %s", name, srnti, ue, verdict)
  elseif srnti then
    return string.format("%s, S-RNTI 0x%x, %s", name, srnti, verdict)
  elseif ue then
    return string.format("%s, UE %d, %s", name, ue, verdict)
  end
  return name .. ", " .. verdict
end

local function add_contents(item, result, view, pinfo)
  local whole = range_of(view, 0, #view.bytes)
  if view.isFramed then
    item:add(fields.length, range_of(view, -lengthSize, lengthSize))
  end
  item:add(fields.message, whole, result.message and result.message.name or ""):set_generated()
  item:add(fields.verdict, whole, result.verdict):set_generated()
  if is_paired(result.message) then
    add_links(item, place_of(view, pinfo))
  end
  for _, child in ipairs(parts_of(view.bytes, result.root)) do
    add_node(item, child, view, pinfo)
  end
end

-- For the list of expert information alone, without an item of their own.
local function list_finding(tree, found, kind)
  tree:add_proto_expert_info(kind, words(found))
end

local function add_findings(add, item, result, view)
  local kind = result.verdict == "invalid" and experts.invalid or experts.refused
  for _, fault in ipairs(result.faults) do
    add(item, fault, kind, view)
  end
  for _, note in ipairs(result.notes) do
    add(item, note, experts.letPass, view)
  end
end

-- A NAS message alone: its dissector has fields and findings of its own.
local function add_nas(item, at, view, pinfo)
  local size = number_at(view.bytes, at + tagSize, headerSize - tagSize)
  if size > 0 then
    dissect_nas(range_of(view, at + headerSize, size), pinfo, item)
  end
end

-- Most packets of a long capture are neither shown nor filtered by an IE, and making their trees
-- would take most of the time. Findings are always wanted, by the list of expert information; and
-- so are NAS messages.
local function add_message(tree, result, view, pinfo, text)
  if tree.visible or tree:referenced(ownDissector) then
    local item = tree:add(tarn, range_of(view, 0, #view.bytes), "Tarn Signalling: " .. text)
    add_contents(item, result, view, pinfo)
    add_findings(add_finding, item, result, view)
    return
  end
  local nasAt = dissectsNas and place_in(result.root, nasType)
  if nasAt then
    add_nas(tree, nasAt, view, pinfo)
  end
  add_findings(list_finding, tree, result, view)
end

local function show_in_columns(text, pinfo)
  local columns = pinfo.cols
  columns.protocol, columns.info = "TARN", text .. "  "
end

-- Keeps what the info column says of a message where more may follow in the packet.
local function keep_info(pinfo)
  pinfo.cols.info:fence()
end

-- `isFramed` tells that the message's length stands in front of it.
local function dissect_message(tvb, start, bytes, pinfo, tree, isFramed)
  local view = { tvb = tvb, start = start, bytes = bytes, isFramed = isFramed }
  local result = read_message(view.bytes)
  local text = summary(result, bytes)
  show_in_columns(text, pinfo)
  if is_paired(result.message) and not pinfo.visited and result.verdict ~= "refused" then
    link_message(result, view, pinfo)
  end
  add_message(tree, result, view, pinfo, text)
end

-- ---- Streams -----------------------------------------------------------------------------------
--
-- A message in a stream has its length in front, most significant byte first.

local magic = "\0\72\0\0\0\1" -- what every message begins with: tag and length of its MessageId

local function begins_with_message(bytes, at)
  return bytes:sub(at + 1, at + #magic) == magic
end

-- Whether a length and a message may begin here, as far as there are bytes; and that length.
local function frame_at(bytes, at)
  local left = #bytes - at
  local size = left >= lengthSize and number_at(bytes, at, lengthSize) or 1
  local start = bytes:sub(at + lengthSize + 1, at + lengthSize + #magic)
  return size > 0 and size <= rows.largestMessage and magic:sub(1, #start) == start, size
end

-- Where the next frame begins behind `at`, or the end.
local function next_frame(bytes, at)
  repeat
    at = at + 1
  until at >= #bytes or frame_at(bytes, at)
  return at
end

local function skip(tvb, at, size, pinfo, tree)
  local item = tree:add(tarn, tvb(at, size), "Tarn Signalling: no message")
  local text = counted(size, "byte") .. " that " .. (size == 1 and "is" or "are") .. " no message"
  item:add(fields.skipped, tvb(at, size)):add_proto_expert_info(experts.skipped, text)
  show_in_columns("[" .. text .. "]", pinfo)
  keep_info(pinfo)
end

-- Asks for more of the stream. Returns false if there is no more to be had.
local function wait_for(count, at, pinfo)
  if pinfo.can_desegment == 0 then
    return false
  end
  pinfo.desegment_offset, pinfo.desegment_len = at, count
  return true
end

-- Each of these takes what stands at a place of a stream and returns the place behind it, or nil to
-- wait for more.
local function dissect_frame(tvb, bytes, at, pinfo, tree)
  local left = #bytes - at
  local _, size = frame_at(bytes, at)
  local missing = lengthSize + size - left
  if left < lengthSize + math.min(size, #magic) then
    missing = DESEGMENT_ONE_MORE_SEGMENT -- any bytes look like a length: do not wait for so many
  end
  if missing > 0 and wait_for(missing, at, pinfo) then
    return nil
  elseif left <= lengthSize then
    skip(tvb, at, left, pinfo, tree)
    return #bytes
  end
  size = math.min(size, left - lengthSize)
  local start = at + lengthSize
  dissect_message(tvb, start, bytes:sub(start + 1, start + size), pinfo, tree, true)
  keep_info(pinfo)
  return start + size
end

-- A sender may write length and message one after the other, so that a segment begins with the
-- message. It ends with the segment, or where a next length follows.
local function dissect_unframed(tvb, bytes, pinfo, tree)
  local size = read_message(bytes).taken
  if size == 0 or not frame_at(bytes, size) then
    size = #bytes
  end
  dissect_message(tvb, 0, bytes:sub(1, size), pinfo, tree)
  keep_info(pinfo)
  return size
end

local function dissect_stream(tvb, bytes, pinfo, tree)
  local at = 0
  if begins_with_message(bytes, 0) then
    at = dissect_unframed(tvb, bytes, pinfo, tree)
  end
  while at and at < #bytes do
    if frame_at(bytes, at) then
      at = dissect_frame(tvb, bytes, at, pinfo, tree)
    else
      local behind = next_frame(bytes, at)
      skip(tvb, at, behind - at, pinfo, tree)
      at = behind
    end
  end
  return #bytes
end

-- ---- Where messages are found ------------------------------------------------------------------

-- Only TCP offers to desegment. A frame elsewhere is read as well.
function tarn.dissector(tvb, pinfo, tree)
  local bytes = tvb:raw()
  if #bytes == 0 then
    return 0
  elseif pinfo.can_desegment > 0 or (#bytes > lengthSize and frame_at(bytes, 0)) then
    return dissect_stream(tvb, bytes, pinfo, tree)
  end
  dissect_message(tvb, 0, bytes, pinfo, tree)
  keep_info(pinfo)
  return #bytes
end

ownDissector = Dissector.get("tarn")

local function find_datagram(tvb, pinfo, tree)
  local bytes = tvb:raw()
  local isFound = begins_with_message(bytes, 0)
  if isFound then
    dissect_message(tvb, 0, bytes, pinfo, tree)
  end
  return isFound
end

-- Calls the function and not the dissector: Wireshark would let that one no longer desegment.
local function find_stream(tvb, pinfo, tree)
  local bytes = tvb:raw()
  local isFrame = #bytes >= lengthSize + #magic and frame_at(bytes, 0)
  local isFound = isFrame or begins_with_message(bytes, 0)
  if isFound then
    pinfo.conversation = tarn
    dissect_stream(tvb, bytes, pinfo, tree)
  end
  return isFound
end

-- Other chunks may follow in the packet.
local function find_chunk(tvb, pinfo, tree)
  local isFound = find_datagram(tvb, pinfo, tree)
  if isFound then
    keep_info(pinfo)
  end
  return isFound
end

tarn:register_heuristic("udp", find_datagram)
tarn:register_heuristic("sctp", find_chunk)
tarn:register_heuristic("tcp", find_stream)

local portTables = {}
for _, name in ipairs({ "udp.port", "sctp.port", "tcp.port" }) do
  portTables[name] = DissectorTable.get(name)
  portTables[name]:add_for_decode_as(tarn)
end
local linkTypes = DissectorTable.get("wtap_encap")
local firstUserLinkType = 147

-- Calls the function with each range of "147,150-152".
local function each_range(text, call)
  for least, greatest in text:gmatch("(%d+)%-?(%d*)") do
    call(tonumber(least), tonumber(greatest) or tonumber(least))
  end
end

local registered = { ports = "", linkTypes = "" }

local function register(ports, types, verb)
  for _, portTable in pairs(portTables) do
    if ports ~= "" then
      portTable[verb](portTable, ports, tarn)
    end
  end
  each_range(types, function(least, greatest)
    for type = math.max(least, firstUserLinkType), greatest do
      linkTypes[verb](linkTypes, wtap_encaps.USER0 + type - firstUserLinkType, tarn)
    end
  end)
end

local function apply_preferences()
  dissectsNas = tarn.prefs.nas
  register(registered.ports, registered.linkTypes, "remove")
  registered = { ports = tarn.prefs.ports, linkTypes = tarn.prefs.link_types }
  register(registered.ports, registered.linkTypes, "add")
end

function tarn.prefs_changed()
  apply_preferences()
end

apply_preferences()
